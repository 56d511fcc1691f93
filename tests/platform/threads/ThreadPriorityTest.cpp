#include "platform/threads/ThreadPriority.h"

#include <gtest/gtest.h>

#ifdef DROSSBIN_LINUX // where each thread can be asked

#include "platform/BackgroundThread.h"

#include <algorithm>
#include <future>
#include <sys/resource.h>
#include <thread>

namespace drossbin {
namespace {

int niceValue() {
    return ::getpriority(PRIO_PROCESS, 0);
}

/// Ten more than this thread's, whatever the program was started with.
int loweredNiceValue() {
    constexpr int lowest = 19;
    return std::min(niceValue() + 10, lowest);
}

TEST(ThreadPriority, is_lowered_for_the_calling_thread_and_no_other) {
    const int before = niceValue();
    int lowered = 0;
    std::thread([&lowered] {
        goAfterOthers();
        lowered = niceValue();
    }).join();
    EXPECT_EQ(lowered, loweredNiceValue());
    EXPECT_EQ(niceValue(), before);
}

TEST(ThreadPriority, gets_no_lower_for_a_thread_that_one_of_low_priority_started) {
    int lowered = 0;
    std::thread([&lowered] {
        goAfterOthers();
        std::thread([&lowered] {
            goAfterOthers();
            lowered = niceValue();
        }).join();
    }).join();
    EXPECT_EQ(lowered, loweredNiceValue());
}

TEST(ThreadPriority, is_low_in_the_background) {
    std::promise<int> value;
    BackgroundThread::run([&value] { value.set_value(niceValue()); });
    EXPECT_EQ(value.get_future().get(), loweredNiceValue());
    BackgroundThread::waitForAll();
}

} // namespace
} // namespace drossbin

#endif
