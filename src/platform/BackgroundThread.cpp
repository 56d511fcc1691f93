#include "platform/BackgroundThread.h"

#include "platform/MainThread.h"
#include "platform/threads/ThreadPriority.h"

#include <atomic>
#include <cstddef>
#include <system_error>
#include <thread>
#include <utility>

namespace drossbin {

namespace {

// The process ends with its main thread: this is the one place that knows whether work is left.
std::atomic<std::size_t>& jobsLeft() {
    static std::atomic<std::size_t> count = 0;
    return count;
}

void finish(const BackgroundThread::Job& job) {
    job();
    --jobsLeft();
    jobsLeft().notify_all();
}

} // namespace

void BackgroundThread::run(Job job) {
    ++jobsLeft();
    const auto work = [job = std::move(job)] { finish(job); };
    try {
        std::thread([work] {
            goAfterOthers();
            work();
        }).detach();
    } catch (const std::system_error&) {
        MainThread::post(work);
    }
}

bool BackgroundThread::isAnyRunning() {
    return jobsLeft() > 0;
}

void BackgroundThread::waitForAll() {
    for (std::size_t left = jobsLeft(); left > 0; left = jobsLeft()) {
        jobsLeft().wait(left);
    }
}

} // namespace drossbin
