#pragma once

#include <cstdint>

/// How far the memory of this process grows from now on.
class PeakMemory {
  public:
    /// At its highest, in KiB.
    [[nodiscard]] std::int64_t growth() const;

  private:
    static std::int64_t status(const char* field);

    const std::int64_t m_start = status("VmRSS:");
};
