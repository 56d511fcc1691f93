#include "platform/words/Calendar.h"

#include <unicode/gregocal.h>

#include <cmath>

namespace drossbin {

std::optional<Date> Calendar::dateByAddingDays(int days, Date date) {
    using std::chrono::milliseconds;
    const auto whole = std::chrono::floor<milliseconds>(date);
    UErrorCode status = U_ZERO_ERROR;
    icu::GregorianCalendar calendar(status);
    calendar.setTime(static_cast<UDate>(whole.time_since_epoch().count()), status);
    calendar.add(UCAL_DATE, days, status);
    const UDate moved = calendar.getTime(status);
    constexpr auto furthest = static_cast<UDate>(
        std::chrono::duration_cast<milliseconds>(Date::max().time_since_epoch()).count() - 1);
    if (U_FAILURE(status) || std::abs(moved) > furthest) {
        return std::nullopt;
    }
    // The calendar counts milliseconds; what is finer than that goes along unchanged.
    return Date(milliseconds(static_cast<milliseconds::rep>(moved))) + (date - whole);
}

} // namespace drossbin
