#pragma once

#include <condition_variable>
#include <cstddef>
#include <cstdint>

namespace drossbin {

class WalkCrew;

/// What the walks know of each other that measure one tree together.
struct Measurement {
    explicit Measurement(WalkCrew* itsCrew)
        : crew(itsCrew) {}

    WalkCrew* const crew; ///< absent where one walk has to do it all

    // What was given away, and what came back of it. Guarded by the crew.

    std::int64_t size = 0;
    std::size_t parcelsOut = 0;
    bool isOwnerWaiting = false;
    std::condition_variable comeBack;
};

} // namespace drossbin
