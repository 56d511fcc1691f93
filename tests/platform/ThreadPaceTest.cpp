#include "platform/ThreadPace.h"

#include <gtest/gtest.h>

#include <chrono>
#include <ctime>
#include <thread>

namespace drossbin {
namespace {

/// Until the thread had the processor for a while, however many others want it.
void compute() {
    const std::clock_t end = std::clock() + CLOCKS_PER_SEC / 100;
    while (std::clock() < end) {
    }
}

TEST(ThreadPace, has_not_waited_when_nothing_is_known_yet) {
    EXPECT_FALSE(ThreadPace().hasWaited());
}

TEST(ThreadPace, has_waited_when_the_thread_slept) {
    ThreadPace pace;
    pace.hasWaited();
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    EXPECT_TRUE(pace.hasWaited());
}

TEST(ThreadPace, has_not_waited_when_the_thread_computed) {
    ThreadPace pace;
    pace.hasWaited();
    compute();
    EXPECT_FALSE(pace.hasWaited());
}

TEST(ThreadPace, forgets_what_was_before_the_last_look) {
    ThreadPace pace;
    pace.hasWaited();
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    pace.hasWaited();
    compute();
    EXPECT_FALSE(pace.hasWaited());
}

TEST(ThreadPace, forgets_what_was_before_a_restart) {
    ThreadPace pace;
    pace.hasWaited();
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    pace.restart();
    compute();
    EXPECT_FALSE(pace.hasWaited());
}

} // namespace
} // namespace drossbin
