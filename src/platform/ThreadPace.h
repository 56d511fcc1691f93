#pragma once

#include <cstdint>

namespace drossbin {

/// Tells whether a thread spends its time waiting rather than computing.
class ThreadPace {
  public:
    /// Whether the calling thread waited for most of the time since the last call on it.
    bool hasWaited();

  private:
    std::int64_t m_time = 0;
    std::int64_t m_processorTime = 0;
    std::int64_t m_pauses = 0;
};

} // namespace drossbin
