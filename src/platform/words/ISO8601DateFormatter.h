#pragma once

#include "platform/basics/Date.h"

#include <string>

namespace drossbin {

/// Instants as machines and log readers expect them.
class ISO8601DateFormatter {
  public:
    /// Date and time in UTC to the second: "2026-03-01T14:05:09Z".
    static std::string string(Date date);
};

/// Date and time in UTC in words that sort: "2026-03-01 14:05:09 +0000".
std::string dateDescription(Date date);

} // namespace drossbin
