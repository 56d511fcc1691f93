#pragma once

#include "platform/basics/Stop.h"

#include <cstdint>
#include <limits>

namespace drossbin {

/// The sum of two byte counts. Stops the program when it does not fit: a wrapped total would
/// promise space that is not there.
[[nodiscard]] constexpr std::int64_t checkedSum(std::int64_t left, std::int64_t right) {
    using Limits = std::numeric_limits<std::int64_t>;
    const bool overflows = right > 0 ? left > Limits::max() - right : left < Limits::min() - right;
    if (overflows) {
        stopProgram("a sum of sizes exceeds 64 bits");
    }
    return left + right;
}

} // namespace drossbin
