#pragma once

#include "platform/MainThread.h"

#include <mutex>
#include <utility>
#include <vector>

namespace drossbin::test {

/// The main thread's queue of jobs, which runs nothing until the test turns it. The thread that
/// makes it is the main thread. The connection outlives it: jobs posted later are forgotten.
class HandTurnedQueue {
  public:
    HandTurnedQueue() {
        MainThread::connect([this](MainThread::Job job) {
            const std::lock_guard lock(m_mutex);
            m_jobs.push_back(std::move(job));
        });
    }
    ~HandTurnedQueue() {
        MainThread::connect([](const MainThread::Job&) {});
    }
    HandTurnedQueue(const HandTurnedQueue&) = delete;
    HandTurnedQueue& operator=(const HandTurnedQueue&) = delete;
    HandTurnedQueue(HandTurnedQueue&&) = delete;
    HandTurnedQueue& operator=(HandTurnedQueue&&) = delete;

    /// Runs the jobs posted so far, in the order in which they were posted.
    void turn() {
        std::unique_lock lock(m_mutex);
        const auto jobs = std::exchange(m_jobs, {});
        lock.unlock();
        for (const MainThread::Job& job : jobs) {
            job();
        }
    }

  private:
    std::mutex m_mutex;
    std::vector<MainThread::Job> m_jobs;
};

} // namespace drossbin::test
