#include "platform/words/ByteCountFormatter.h"

#include <unicode/locid.h>
#include <unicode/measunit.h>
#include <unicode/numberformatter.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <limits>
#include <string_view>

namespace drossbin {

namespace {

struct Unit {
    std::uint64_t limit; ///< bytes that are rounded, half to even, to 1,000 of it
    int power;           ///< of ten, in bytes
    int decimals;
    const char* identifier; ///< among ICU's units
    std::string_view english;
};

constexpr Unit byte{1'000, 0, 0, "byte", "bytes"};
constexpr Unit kilobyte{999'500, 3, 0, "kilobyte", "KB"};
constexpr Unit exabyte{std::numeric_limits<std::uint64_t>::max(), 18, 2, "exabyte", "EB"};
constexpr std::array units{byte,
                           kilobyte,
                           Unit{999'950'000, 6, 1, "megabyte", "MB"},
                           Unit{999'995'000'000, 9, 2, "gigabyte", "GB"},
                           Unit{999'995'000'000'000, 12, 2, "terabyte", "TB"},
                           Unit{999'995'000'000'000'000, 15, 2, "petabyte", "PB"},
                           exabyte};

struct Amount {
    std::int64_t bytes;
    Unit unit;
};

Amount amountOf(std::int64_t bytes) {
    if (bytes == 0) {
        return {bytes, kilobyte};
    }
    const auto bits = static_cast<std::uint64_t>(bytes);
    const std::uint64_t magnitude = bytes < 0 ? 0 - bits : bits;
    return {bytes, *std::ranges::find_if(
                       units, [magnitude](const Unit& unit) { return magnitude < unit.limit; })};
}

/// Rounds half to even, exactly: ICU counts in decimal places.
icu::number::LocalizedNumberFormatter numberFormatter(const Amount& amount,
                                                      const icu::Locale& locale) {
    return icu::number::NumberFormatter::withLocale(locale)
        .scale(icu::number::Scale::powerOfTen(-amount.unit.power))
        .precision(icu::number::Precision::maxFraction(amount.unit.decimals));
}

icu::UnicodeString inEnglish(const Amount& amount, const icu::Locale& locale, UErrorCode& status) {
    const bool isOneByte = amount.bytes == 1 || amount.bytes == -1;
    const std::string_view unit = isOneByte ? "byte" : amount.unit.english;
    return numberFormatter(amount, locale)
        .formatInt(amount.bytes, status)
        .toString(status)
        .append(u' ')
        .append(icu::UnicodeString::fromUTF8({unit.data(), static_cast<int32_t>(unit.size())}));
}

icu::UnicodeString withUnit(const Amount& amount, const char* identifier, const icu::Locale& locale,
                            UErrorCode& status) {
    return numberFormatter(amount, locale)
        .unit(icu::MeasureUnit::forIdentifier(identifier, status))
        .unitWidth(UNUM_UNIT_WIDTH_SHORT)
        .formatInt(amount.bytes, status)
        .toString(status);
}

icu::UnicodeString inOtherLanguage(const Amount& amount, const icu::Locale& locale,
                                   UErrorCode& status) {
    if (amount.unit.power != exabyte.power) {
        return withUnit(amount, amount.unit.identifier, locale, status);
    }
    // CLDR names no exabyte, and ICU's makeshift reads "Ebyte": where the petabyte is "PB", people
    // write "EB".
    icu::UnicodeString text = withUnit(amount, "petabyte", locale, status);
    return text.indexOf(u"PB") >= 0 ? text.findAndReplace(u"PB", u"EB")
                                    : withUnit(amount, exabyte.identifier, locale, status);
}

} // namespace

std::string ByteCountFormatter::string(std::int64_t bytes, const Locale& locale) {
    const icu::Locale icuLocale(locale.identifier.c_str());
    const bool isEnglish = std::string_view(icuLocale.getLanguage()) == "en";
    if (bytes == 0 && isEnglish) {
        return "Zero KB";
    }
    const Amount amount = amountOf(bytes);
    UErrorCode status = U_ZERO_ERROR;
    std::string text;
    (isEnglish ? inEnglish(amount, icuLocale, status) : inOtherLanguage(amount, icuLocale, status))
        .toUTF8String(text);
    return U_SUCCESS(status) ? text : std::to_string(bytes) + " bytes";
}

} // namespace drossbin
