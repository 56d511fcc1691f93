#include "platform/words/RelativeDateTimeFormatter.h"

#include <unicode/gregocal.h>
#include <unicode/reldatefmt.h>
#include <unicode/unistr.h>

#include <array>
#include <string_view>

namespace drossbin {

namespace {

struct Unit {
    UCalendarDateFields field;
    URelativeDateTimeUnit name;
};

constexpr std::array<Unit, 7> unitsFromLargest{{
    {UCAL_EXTENDED_YEAR, UDAT_REL_UNIT_YEAR}, // counts through year 1, where UCAL_YEAR turns back
    {UCAL_MONTH, UDAT_REL_UNIT_MONTH},
    {UCAL_WEEK_OF_YEAR, UDAT_REL_UNIT_WEEK},
    {UCAL_DATE, UDAT_REL_UNIT_DAY},
    {UCAL_HOUR, UDAT_REL_UNIT_HOUR},
    {UCAL_MINUTE, UDAT_REL_UNIT_MINUTE},
    {UCAL_SECOND, UDAT_REL_UNIT_SECOND},
}};

struct Difference {
    std::int32_t amount; ///< negative in the past
    URelativeDateTimeUnit unit;
};

UDate icuDate(Date date) {
    return static_cast<UDate>(
        std::chrono::floor<std::chrono::milliseconds>(date).time_since_epoch().count());
}

Difference difference(Date date, Date reference, UErrorCode& status) {
    icu::GregorianCalendar calendar(status);
    calendar.setTime(icuDate(reference), status);
    for (const Unit& unit : unitsFromLargest) {
        const std::int32_t amount = calendar.fieldDifference(icuDate(date), unit.field, status);
        if (amount != 0) {
            return {amount, unit.name};
        }
    }
    return {0, UDAT_REL_UNIT_SECOND};
}

} // namespace

std::string RelativeDateTimeFormatter::localizedString(Date date, Date reference, UnitsStyle style,
                                                       const Locale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    const Difference found = difference(date, reference, status);
    const icu::RelativeDateTimeFormatter formatter(icu::Locale(locale.identifier.c_str()), nullptr,
                                                   style == UnitsStyle::full ? UDAT_STYLE_LONG
                                                                             : UDAT_STYLE_SHORT,
                                                   UDISPCTX_CAPITALIZATION_NONE, status);
    icu::UnicodeString phrase;
    formatter.formatNumeric(found.amount, found.unit, phrase, status);
    if (U_FAILURE(status)) {
        return "—"; // what a row shows for a date that it does not know
    }
    std::string text;
    return phrase.toUTF8String(text);
}

} // namespace drossbin
