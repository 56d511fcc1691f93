#include "platform/threads/ThreadPace.h"

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
std::int64_t pausesSoFar() {
#ifdef DROSSBIN_LINUX
    rusage usage{};
    ::getrusage(RUSAGE_THREAD, &usage);
    return usage.ru_nvcsw;
#else
    return nanoseconds(CLOCK_MONOTONIC); // the system does not say: as if it did so all the time
#endif
}

} // namespace

ThreadPace::Moment ThreadPace::Moment::now() {
    return {nanoseconds(CLOCK_MONOTONIC), nanoseconds(CLOCK_THREAD_CPUTIME_ID), pausesSoFar()};
}

bool ThreadPace::hasWaited() {
    const Moment now = Moment::now();
    const std::optional<Moment> last = std::exchange(m_last, now);
    if (!last || now.pauses == last->pauses) {
        return false;
    }
    return now.processorTime - last->processorTime < (now.time - last->time) / 2;
}

} // namespace drossbin
