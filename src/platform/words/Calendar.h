#pragma once

#include "platform/basics/Date.h"

#include <optional>

namespace drossbin {

/// The user's calendar in the local time zone.
class Calendar {
  public:
    /// `date` moved by whole calendar days: the same time of day, whatever the clock changes
    /// between. Absent when the calendar cannot form that date.
    static std::optional<Date> dateByAddingDays(int days, Date date);
};

} // namespace drossbin
