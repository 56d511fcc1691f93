#include "platform/ThreadPace.h"

#include <ctime>
#include <sys/resource.h>
#include <utility>

namespace drossbin {

namespace {

std::int64_t nanoseconds(clockid_t clock) {
    timespec time{};
    ::clock_gettime(clock, &time);
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

/// How often the thread has stopped of its own accord. When it was made to stop, so that another
/// could run, it had something to do.
std::int64_t pauses() {
#ifdef RUSAGE_THREAD
    rusage usage{};
    ::getrusage(RUSAGE_THREAD, &usage);
    return usage.ru_nvcsw;
#else
    return nanoseconds(CLOCK_MONOTONIC); // the system does not say: as if it did so all the time
#endif
}

} // namespace

bool ThreadPace::hasWaited() {
    const std::int64_t time = nanoseconds(CLOCK_MONOTONIC);
    const std::int64_t processorTime = nanoseconds(CLOCK_THREAD_CPUTIME_ID);
    const std::int64_t pausesSoFar = pauses();
    const std::int64_t passed = time - std::exchange(m_time, time);
    const std::int64_t used = processorTime - std::exchange(m_processorTime, processorTime);
    const bool hasPaused = pausesSoFar != std::exchange(m_pauses, pausesSoFar);
    const bool isFirstCall = passed == time;
    return !isFirstCall && hasPaused && used < passed / 2;
}

} // namespace drossbin
