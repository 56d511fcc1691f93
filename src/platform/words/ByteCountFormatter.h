#pragma once

#include "platform/words/Locale.h"

#include <cstdint>
#include <string>

namespace drossbin {

/// Byte counts as people read them.
class ByteCountFormatter {
  public:
    /// `bytes` in file style: decimal units of 1000, "Zero KB", "1 byte", "999 bytes", then KB
    /// with no decimals, MB with at most one, GB and above with at most two. UTF-8.
    static std::string string(std::int64_t bytes, const Locale& locale = Locale::current());
};

} // namespace drossbin
