#include "platform/threads/ThreadUsage.h"

#include <ctime>
#include <sys/resource.h>

namespace drossbin {

namespace {

std::int64_t nanoseconds(clockid_t clock) {
    timespec time{};
    ::clock_gettime(clock, &time);
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

std::int64_t pausesSoFar() {
#ifdef DROSSBIN_LINUX
    rusage usage{};
    ::getrusage(RUSAGE_THREAD, &usage);
    return usage.ru_nvcsw;
#else
    return nanoseconds(CLOCK_MONOTONIC);
#endif
}

} // namespace

ThreadUsage ThreadUsage::now() {
    return {nanoseconds(CLOCK_MONOTONIC), nanoseconds(CLOCK_THREAD_CPUTIME_ID), pausesSoFar()};
}

bool ThreadUsage::hasWaitedSince(const ThreadUsage& before) const {
    return pauses != before.pauses &&
           processorTime - before.processorTime < (time - before.time) / 2;
}

} // namespace drossbin
