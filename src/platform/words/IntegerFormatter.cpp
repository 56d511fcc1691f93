#include "platform/words/IntegerFormatter.h"

#include <unicode/locid.h>
#include <unicode/numberformatter.h>

namespace drossbin {

std::string IntegerFormatter::string(std::int64_t value, const Locale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    std::string text;
    icu::number::NumberFormatter::withLocale(icu::Locale(locale.identifier.c_str()))
        .formatInt(value, status)
        .toString(status)
        .toUTF8String(text);
    return U_SUCCESS(status) ? text : std::to_string(value);
}

} // namespace drossbin
