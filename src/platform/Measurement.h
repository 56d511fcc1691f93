#pragma once

#include "platform/OpenFolder.h"

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <cstdint>

namespace drossbin {

class WalkCrew;

/// What the walks know of each other that measure one tree together.
///
/// Where the process may open no more files, walks that wait for each other to close some would
/// wait for ever, and one that stops waiting would leave a part of its tree out. So none waits as
/// long as there may be others: it gives the measurement up, which is then made again alone.
struct Measurement {
    explicit Measurement(WalkCrew* itsCrew)
        : crew(itsCrew) {}

    WalkCrew* const crew; ///< absent where no other walk is under way

    /// Opens a folder of the tree. Gives the measurement up where that takes a descriptor too many.
    FileDescriptor open(int parent, const char* name, LastLink link);

    /// Whether the sum is incomplete and the walks are to end.
    [[nodiscard]] bool isGivenUp() const { return m_isGivenUp.load(std::memory_order_relaxed); }

    // What was given away, and what came back of it. Guarded by the crew.

    std::int64_t size = 0;
    std::size_t parcelsOut = 0;
    bool isOwnerWaiting = false;
    std::condition_variable comeBack;

  private:
    std::atomic<bool> m_isGivenUp = false;
};

} // namespace drossbin
