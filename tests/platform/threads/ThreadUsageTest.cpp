#include "platform/threads/ThreadUsage.h"

#include <gtest/gtest.h>

#include <thread>

namespace drossbin {
namespace {

constexpr ThreadUsage before{.time = 1'000, .processorTime = 500, .pauses = 7};

TEST(ThreadUsage, is_waiting_when_the_thread_stopped_and_had_less_than_half_of_the_time) {
    EXPECT_TRUE((ThreadUsage{2'000, 999, 8}.hasWaitedSince(before)));
    EXPECT_FALSE((ThreadUsage{2'000, 1'000, 8}.hasWaitedSince(before)));
}

TEST(ThreadUsage, is_no_waiting_when_others_took_the_threads_turns) {
    EXPECT_FALSE((ThreadUsage{2'000, 500, 7}.hasWaitedSince(before)));
}

TEST(ThreadUsage, counts_the_threads_own_processor_time) {
    const ThreadUsage first = ThreadUsage::now();
    ThreadUsage last = first;
    while (last.processorTime == first.processorTime) {
        last = ThreadUsage::now();
    }
    EXPECT_GT(last.processorTime, first.processorTime);
    EXPECT_GE(last.time - first.time, last.processorTime - first.processorTime);
}

TEST(ThreadUsage, counts_the_threads_own_pauses) {
    const ThreadUsage first = ThreadUsage::now();
    // To wait for another thread is to pause, unless that one was quicker.
    while (ThreadUsage::now().pauses == first.pauses) {
        std::thread([] {}).join();
    }
    EXPECT_GT(ThreadUsage::now().pauses, first.pauses);
}

} // namespace
} // namespace drossbin
