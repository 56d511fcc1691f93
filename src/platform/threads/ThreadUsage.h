#pragma once

#include <cstdint>

namespace drossbin {

/// What a thread has used so far.
struct ThreadUsage {
    std::int64_t time = 0;          ///< that has passed, in nanoseconds
    std::int64_t processorTime = 0; ///< that it had, in nanoseconds
    /// How often it has stopped of its own accord. When it was made to stop, so that another could
    /// run, it had something to do. Where the system does not say, as if it did so all the time.
    std::int64_t pauses = 0;

    /// Of the calling thread.
    static ThreadUsage now();

    /// Whether the thread waited rather than computed for most of the time since `before`.
    [[nodiscard]] bool hasWaitedSince(const ThreadUsage& before) const;
};

} // namespace drossbin
