#include "platform/BackgroundThread.h"

#include "support/HandTurnedQueue.h"

#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <latch>
#include <pthread.h>
#include <thread>

namespace drossbin {
namespace {

TEST(BackgroundThread, runs_its_job_on_another_thread) {
    std::promise<std::thread::id> thread;
    BackgroundThread::run([&thread] { thread.set_value(std::this_thread::get_id()); });
    EXPECT_NE(thread.get_future().get(), std::this_thread::get_id());
    BackgroundThread::waitForAll();
}

TEST(BackgroundThread, never_makes_a_job_wait_for_another) {
    constexpr int jobs = 50;
    std::latch allAtOnce(jobs);
    for (int job = 0; job < jobs; ++job) {
        BackgroundThread::run([&allAtOnce] { allAtOnce.arrive_and_wait(); });
    }
    allAtOnce.wait();
    BackgroundThread::waitForAll();
}

TEST(BackgroundThread, is_running_until_its_job_ends) {
    EXPECT_FALSE(BackgroundThread::isAnyRunning());
    std::latch gate(1);
    std::atomic<bool> hasEnded = false;
    BackgroundThread::run([] {});
    BackgroundThread::run([&] {
        gate.wait();
        hasEnded = true;
    });
    EXPECT_TRUE(BackgroundThread::isAnyRunning());
    gate.count_down();
    BackgroundThread::waitForAll();
    EXPECT_TRUE(hasEnded);
    EXPECT_FALSE(BackgroundThread::isAnyRunning());
}

#ifdef __GLIBC__ // where it can be brought about

/// While it lives, a new thread wants a stack that is larger than any memory.
class NoThreads {
  public:
    NoThreads() {
        ::pthread_getattr_default_np(&m_before);
        pthread_attr_t immense;
        ::pthread_getattr_default_np(&immense);
        ::pthread_attr_setstacksize(&immense, std::size_t{1} << 60);
        EXPECT_EQ(::pthread_setattr_default_np(&immense), 0);
        ::pthread_attr_destroy(&immense);
    }
    ~NoThreads() {
        ::pthread_setattr_default_np(&m_before);
        ::pthread_attr_destroy(&m_before);
    }
    NoThreads(const NoThreads&) = delete;
    NoThreads& operator=(const NoThreads&) = delete;
    NoThreads(NoThreads&&) = delete;
    NoThreads& operator=(NoThreads&&) = delete;

  private:
    pthread_attr_t m_before{};
};

TEST(BackgroundThread, leaves_its_job_to_the_main_thread_where_none_can_be_started) {
    test::HandTurnedQueue queue;
    const NoThreads noThreads;
    std::thread::id thread;
    BackgroundThread::run([&thread] { thread = std::this_thread::get_id(); });
    EXPECT_EQ(thread, std::thread::id());
    EXPECT_TRUE(BackgroundThread::isAnyRunning());
    queue.turn();
    EXPECT_EQ(thread, std::this_thread::get_id());
    EXPECT_FALSE(BackgroundThread::isAnyRunning());
}

#endif

} // namespace
} // namespace drossbin
