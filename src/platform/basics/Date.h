#pragma once

#include <chrono>

namespace drossbin {

/// An instant in UTC. Microseconds, because nanoseconds in 64 bits end in the year 2262 and a
/// file system may hold any date at all.
using Date = std::chrono::sys_time<std::chrono::microseconds>;

/// The present moment of the system's clock.
[[nodiscard]] inline Date now() {
    return std::chrono::floor<std::chrono::microseconds>(std::chrono::system_clock::now());
}

} // namespace drossbin
