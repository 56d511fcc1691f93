#include "platform/ThreadPace.h"

#include <ctime>
#include <utility>

namespace drossbin {

namespace {

std::int64_t nanoseconds(clockid_t clock) {
    timespec time{};
    ::clock_gettime(clock, &time);
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

} // namespace

bool ThreadPace::hasWaited() {
    const std::int64_t time = nanoseconds(CLOCK_MONOTONIC);
    const std::int64_t processorTime = nanoseconds(CLOCK_THREAD_CPUTIME_ID);
    const std::int64_t passed = time - std::exchange(m_time, time);
    const std::int64_t used = processorTime - std::exchange(m_processorTime, processorTime);
    const bool isFirstCall = passed == time;
    return !isFirstCall && used < passed / 2;
}

} // namespace drossbin
