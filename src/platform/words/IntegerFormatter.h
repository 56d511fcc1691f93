#pragma once

#include "platform/words/Locale.h"

#include <cstdint>
#include <string>

namespace drossbin {

/// Whole numbers with the locale's digits and separators.
class IntegerFormatter {
  public:
    static std::string string(std::int64_t value, const Locale& locale = Locale::current());
};

} // namespace drossbin
