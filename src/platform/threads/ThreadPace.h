#pragma once

#include <cstdint>
#include <optional>

namespace drossbin {

/// Tells whether a thread spends its time waiting rather than computing.
class ThreadPace {
  public:
    /// Whether the calling thread waited for most of the time since the last call on it.
    bool hasWaited();

    /// Forgets what was before, as when the thread waited for another.
    void restart() { m_last = Moment::now(); }

  private:
    struct Moment {
        std::int64_t time; ///< in nanoseconds, as is the next
        std::int64_t processorTime;
        std::int64_t pauses;

        static Moment now();
    };

    std::optional<Moment> m_last;
};

} // namespace drossbin
