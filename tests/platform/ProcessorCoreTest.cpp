#include "platform/ProcessorCore.h"

#include <gtest/gtest.h>

#ifdef __linux__ // other systems do not tell

#include <sched.h>
#include <thread>

namespace drossbin {
namespace {

cpu_set_t allowedCores() {
    cpu_set_t cores;
    EXPECT_EQ(::sched_getaffinity(0, sizeof(cores), &cores), 0);
    return cores;
}

/// Runs `test` on a thread of its own, for what it does to itself.
template <class Test>
void onAThread(Test test) {
    std::thread(test).join();
}

TEST(ProcessorCore, is_one_of_those_that_the_thread_may_run_on) {
    const cpu_set_t cores = allowedCores();
    EXPECT_TRUE(CPU_ISSET(static_cast<std::size_t>(currentCore().value()), &cores));
}

TEST(ProcessorCore, is_left_for_another) {
    const cpu_set_t cores = allowedCores();
    if (CPU_COUNT(&cores) < 2) {
        GTEST_SKIP() << "there is no other core";
    }
    onAThread([] {
        bool hasMoved = false;
        // The system may bring the thread back at once, but not each time.
        for (int attempt = 0; attempt < 1'000 && !hasMoved; ++attempt) {
            const std::optional<int> before = currentCore();
            leaveCore(before);
            hasMoved = currentCore() != before;
        }
        EXPECT_TRUE(hasMoved);
    });
}

TEST(ProcessorCore, may_be_run_on_again_once_it_is_left) {
    const cpu_set_t before = allowedCores();
    onAThread([&before] {
        leaveCore(currentCore());
        const cpu_set_t after = allowedCores();
        EXPECT_TRUE(CPU_EQUAL(&before, &after));
    });
}

TEST(ProcessorCore, is_not_left_when_the_thread_may_run_nowhere_else) {
    onAThread([] {
        const int core = currentCore().value();
        cpu_set_t only;
        CPU_ZERO(&only);
        CPU_SET(static_cast<std::size_t>(core), &only);
        ASSERT_EQ(::sched_setaffinity(0, sizeof(only), &only), 0);
        leaveCore(core);
        EXPECT_EQ(currentCore(), core);
        const cpu_set_t after = allowedCores();
        EXPECT_TRUE(CPU_EQUAL(&only, &after));
    });
}

TEST(ProcessorCore, is_not_left_when_it_is_not_known) {
    const cpu_set_t before = allowedCores();
    leaveCore(std::nullopt);
    const cpu_set_t after = allowedCores();
    EXPECT_TRUE(CPU_EQUAL(&before, &after));
}

} // namespace
} // namespace drossbin

#endif
