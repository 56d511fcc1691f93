#pragma once

#include <cstdio>
#include <cstdlib>

namespace drossbin::fuzz {

/// Ends the program where a property does not hold: what both a fuzzer and a test take for a
/// finding.
inline void require(bool holds, const char* property) {
    if (!holds) {
        std::fprintf(stderr, "does not hold: %s\n", property);
        std::abort();
    }
}

} // namespace drossbin::fuzz
