#include "platform/words/ByteCountFormatter.h"

#include <unicode/locid.h>
#include <unicode/measunit.h>
#include <unicode/numberformatter.h>
#include <unicode/unistr.h>

#include <array>
#include <string_view>

namespace drossbin {

namespace {

struct Unit {
    std::uint64_t lastPlace; ///< bytes that the last decimal place shown stands for
    int decimals;
    const char* identifier; ///< among ICU's units
    std::string_view english;
};

constexpr Unit byte{1, 0, "byte", "bytes"};
constexpr Unit kilobyte{1'000, 0, "kilobyte", "KB"};
constexpr Unit exabyte{10'000'000'000'000'000, 2, "exabyte", "EB"};
constexpr std::array units{byte,
                           kilobyte,
                           Unit{100'000, 1, "megabyte", "MB"},
                           Unit{10'000'000, 2, "gigabyte", "GB"},
                           Unit{10'000'000'000, 2, "terabyte", "TB"},
                           Unit{10'000'000'000'000, 2, "petabyte", "PB"},
                           exabyte};

struct Amount {
    std::int64_t places; ///< counted in the unit's last decimal place
    Unit unit;
};

/// Exact in integers: a double cannot tell 2.5 from its neighbours at these magnitudes.
std::uint64_t dividedHalfToEven(std::uint64_t value, std::uint64_t divisor) {
    const std::uint64_t quotient = value / divisor;
    const std::uint64_t twice = value % divisor * 2;
    const bool roundsUp = twice > divisor || (twice == divisor && quotient % 2 == 1);
    return quotient + (roundsUp ? 1 : 0);
}

/// `bytes` in the first unit in which it rounds to less than 1,000.
Amount amountOf(std::int64_t bytes) {
    const auto bits = static_cast<std::uint64_t>(bytes);
    const std::uint64_t magnitude = bytes < 0 ? 0 - bits : bits;
    constexpr std::array<std::uint64_t, 3> thousand{1'000, 10'000, 100'000};
    const Unit* unit = units.data();
    std::uint64_t places = magnitude;
    while (places >= thousand.at(static_cast<std::size_t>(unit->decimals))) {
        ++unit;
        places = dividedHalfToEven(magnitude, unit->lastPlace);
    }
    const auto signedPlaces = static_cast<std::int64_t>(places);
    return {bytes < 0 ? -signedPlaces : signedPlaces, *unit};
}

icu::number::LocalizedNumberFormatter numberFormatter(const Amount& amount,
                                                      const icu::Locale& locale) {
    return icu::number::NumberFormatter::withLocale(locale)
        .scale(icu::number::Scale::powerOfTen(-amount.unit.decimals))
        .precision(icu::number::Precision::maxFraction(amount.unit.decimals));
}

icu::UnicodeString inEnglish(const Amount& amount, const icu::Locale& locale, UErrorCode& status) {
    const bool isOneByte = amount.unit.lastPlace == byte.lastPlace && std::abs(amount.places) == 1;
    const std::string_view unit = isOneByte ? "byte" : amount.unit.english;
    return numberFormatter(amount, locale)
        .formatInt(amount.places, status)
        .toString(status)
        .append(u' ')
        .append(icu::UnicodeString::fromUTF8({unit.data(), static_cast<int32_t>(unit.size())}));
}

icu::UnicodeString withUnit(const Amount& amount, const char* identifier, const icu::Locale& locale,
                            UErrorCode& status) {
    return numberFormatter(amount, locale)
        .unit(icu::MeasureUnit::forIdentifier(identifier, status))
        .unitWidth(UNUM_UNIT_WIDTH_SHORT)
        .formatInt(amount.places, status)
        .toString(status);
}

icu::UnicodeString inOtherLanguage(const Amount& amount, const icu::Locale& locale,
                                   UErrorCode& status) {
    if (amount.unit.lastPlace != exabyte.lastPlace) {
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
    const Amount amount = bytes == 0 ? Amount{0, kilobyte} : amountOf(bytes);
    UErrorCode status = U_ZERO_ERROR;
    std::string text;
    (isEnglish ? inEnglish(amount, icuLocale, status) : inOtherLanguage(amount, icuLocale, status))
        .toUTF8String(text);
    return U_SUCCESS(status) ? text : std::to_string(bytes) + " bytes";
}

} // namespace drossbin
