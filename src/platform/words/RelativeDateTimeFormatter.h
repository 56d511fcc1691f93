#pragma once

#include "platform/basics/Date.h"
#include "platform/words/Locale.h"

#include <string>

namespace drossbin {

/// How long ago, in words.
class RelativeDateTimeFormatter {
  public:
    enum class UnitsStyle { full, abbreviated };

    /// The phrase for `date` as seen from `reference`, in calendar units of the local time zone:
    /// the largest unit that is not zero, numeric ("2 months ago", "4 wk. ago", "in 1 hr."). UTF-8.
    static std::string localizedString(Date date, Date reference, UnitsStyle style,
                                       const Locale& locale = Locale::current());
};

} // namespace drossbin
