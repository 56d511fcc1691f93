#include "ByteSource.h"
#include "Characters.h"
#include "Require.h"
#include "platform/words/ByteCountFormatter.h"
#include "platform/words/Calendar.h"
#include "platform/words/ISO8601DateFormatter.h"
#include "platform/words/IntegerFormatter.h"
#include "platform/words/RelativeDateTimeFormatter.h"

#include <unicode/locid.h>
#include <unicode/timezone.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <string>

namespace drossbin::fuzz {
namespace {

using Style = RelativeDateTimeFormatter::UnitsStyle;

/// Half of the time a locale that the system knows, else whatever the bytes spell.
Locale takeLocale(ByteSource& source) {
    const std::uint8_t choice = source.take();
    std::int32_t count = 0;
    const icu::Locale* const known = icu::Locale::getAvailableLocales(count);
    const auto number = (choice & 0x7FU) * 256U + source.take();
    return choice < 0x80 ? Locale{known[number % static_cast<unsigned>(count)].getName()}
                         : Locale{source.takeText(choice & 0x0FU)};
}

void enterZone(std::uint8_t byte) {
    constexpr std::array zones{"UTC",          "Europe/Berlin",    "Asia/Kathmandu",
                               "Pacific/Apia", "America/St_Johns", "Africa/Casablanca",
                               "Asia/Tehran",  "Antarctica/Troll"};
    icu::TimeZone::adoptDefault(icu::TimeZone::createTimeZone(zones.at(byte % zones.size())));
}

void requireOneLine(const std::string& text) {
    require(!text.empty(), "a text says something");
    requireCharacters(
        text, [](std::int32_t character) { return character < 0x20 || character == 0x7F; },
        "a text is one line");
}

/// What an English size text says, in bytes, and half of what its last decimal place stands for.
void requireEnglishSizeIsNear(const std::string& text, std::int64_t bytes) {
    static const std::string units = "kMGTPE";
    const bool isPlain = text.ends_with(" byte") || text.ends_with(" bytes");
    const std::string unit = text.substr(text.find(' ') + 1);
    long double factor = 1;
    long double tolerance = 0.5L;
    if (!isPlain) {
        const std::size_t power = units.find(unit[0] == 'K' ? 'k' : unit[0]);
        require(power != std::string::npos && unit.substr(1) == "B", "an English unit");
        for (std::size_t step = 0; step <= power; ++step) {
            factor *= 1000;
        }
        constexpr std::array<long double, 6> halves{0.5L, 0.05L, 0.005L, 0.005L, 0.005L, 0.005L};
        tolerance = factor * halves.at(power);
    }
    const long double said = std::stold(text) * factor;
    const long double off = said - static_cast<long double>(bytes);
    require(isPlain ? off == 0 : (off <= tolerance * 1.0000001L && -off <= tolerance * 1.0000001L),
            "an English size is the nearest that its unit can say");
}

void tryNumbers(std::int64_t bytes, const Locale& locale) {
    requireOneLine(ByteCountFormatter::string(bytes, locale));
    requireOneLine(IntegerFormatter::string(bytes, locale));
    const std::string english = ByteCountFormatter::string(bytes, {"en_US"});
    require((english == "Zero KB") == (bytes == 0), "only nothing is zero");
    if (bytes != 0) {
        requireEnglishSizeIsNear(english, bytes);
    }
}

void tryDates(Date date, Date reference, const Locale& locale) {
    for (const Style style : {Style::full, Style::abbreviated}) {
        requireOneLine(RelativeDateTimeFormatter::localizedString(date, reference, style, locale));
    }
    const std::string english =
        RelativeDateTimeFormatter::localizedString(date, reference, Style::full, {"en_US"});
    require(english.starts_with("in ") != english.ends_with(" ago"), "to come or gone");
    require(english.starts_with("in 0 ") || english.ends_with(" ago") == (date < reference),
            "what was before is said to be gone");
}

void tryStamps(Date date) {
    const std::string stamp = ISO8601DateFormatter::string(date);
    requireOneLine(stamp);
    require(stamp.find('/') == std::string::npos, "a stamp can be part of a file's name");
    require(stamp.size() == 20 || date < Date() || date > Date() + std::chrono::years(8000),
            "a stamp of our millennia is of 20 characters");
    const std::string words = dateDescription(date);
    require(words.ends_with(" +0000"), "a date in words is in UTC");
    Calendar::dateByAddingDays(-30, date);
}

} // namespace
} // namespace drossbin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace drossbin;
    fuzz::ByteSource source(bytes, size);
    const std::uint8_t choice = source.take();
    // Shifted, so that sizes and dates of every magnitude come, not only the largest.
    const auto takeOfAnyMagnitude = [&source] {
        const unsigned shift = source.take() % 64U;
        return source.takeInteger() >> shift;
    };
    const std::int64_t number = takeOfAnyMagnitude();
    const Date date{std::chrono::microseconds(number)};
    if (choice % 3 == 0) {
        fuzz::tryNumbers(number, fuzz::takeLocale(source));
    } else if (choice % 3 == 1) {
        const Date reference{std::chrono::microseconds(takeOfAnyMagnitude())};
        fuzz::enterZone(choice / 3);
        fuzz::tryDates(date, reference, fuzz::takeLocale(source));
    } else {
        fuzz::enterZone(choice / 3);
        fuzz::tryStamps(date);
    }
    return 0;
}
