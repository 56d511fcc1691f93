#include "platform/threads/ThreadPace.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <ctime>
#include <thread>
#include <vector>

#ifdef DROSSBIN_LINUX
#include <sched.h>
#endif

namespace drossbin {
namespace {

constexpr std::chrono::milliseconds aWhile{20};

TEST(ThreadPace, has_not_waited_when_nothing_is_known_yet) {
    EXPECT_FALSE(ThreadPace().hasWaited());
}

TEST(ThreadPace, has_waited_when_the_thread_slept) {
    ThreadPace pace;
    pace.hasWaited();
    std::this_thread::sleep_for(aWhile);
    EXPECT_TRUE(pace.hasWaited());
}

#ifdef DROSSBIN_LINUX // where the system tells who stopped the thread

/// Until the thread had the processor for a while, however many others want it.
void compute() {
    const auto used = [] {
        timespec time{};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
    };
    const auto end = used() + aWhile;
    while (used() < end) {
    }
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
    std::this_thread::sleep_for(aWhile);
    pace.hasWaited();
    compute();
    EXPECT_FALSE(pace.hasWaited());
}

TEST(ThreadPace, forgets_what_was_before_a_restart) {
    ThreadPace pace;
    pace.hasWaited();
    std::this_thread::sleep_for(aWhile);
    pace.restart();
    compute();
    EXPECT_FALSE(pace.hasWaited());
}

/// Has the calling thread, and those that it starts, run on one core only.
void stayOnOneCore() {
    cpu_set_t core;
    CPU_ZERO(&core);
    CPU_SET(static_cast<std::size_t>(::sched_getcpu()), &core);
    ASSERT_EQ(::sched_setaffinity(0, sizeof(core), &core), 0);
}

TEST(ThreadPace, has_not_waited_when_others_took_its_turns) {
    std::thread([] {
        stayOnOneCore();
        std::atomic<bool> isOver = false;
        std::vector<std::thread> others;
        for (int number = 0; number < 4; ++number) {
            others.emplace_back([&isOver] {
                while (!isOver) {
                }
            });
        }
        ThreadPace pace;
        pace.hasWaited();
        compute();
        EXPECT_FALSE(pace.hasWaited());
        isOver = true;
        for (std::thread& other : others) {
            other.join();
        }
    }).join();
}

#endif

} // namespace
} // namespace drossbin
