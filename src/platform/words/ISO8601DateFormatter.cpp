#include "platform/words/ISO8601DateFormatter.h"

#include <array>
#include <cstdio>
#include <ctime>

namespace drossbin {

namespace {

/// `date` in UTC to the second, in a pattern of six numbers from the year to the second.
std::string inUtc(Date date, const char* pattern) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(date);
    const std::time_t time = seconds.time_since_epoch().count();
    std::tm parts{};
    ::gmtime_r(&time, &parts);
    std::array<char, 80> text{};
    const int length =
        std::snprintf(text.data(), text.size(), pattern, parts.tm_year + 1900L, parts.tm_mon + 1,
                      parts.tm_mday, parts.tm_hour, parts.tm_min, parts.tm_sec);
    return {text.data(), static_cast<std::size_t>(length)};
}

} // namespace

std::string ISO8601DateFormatter::string(Date date) {
    return inUtc(date, "%04ld-%02d-%02dT%02d:%02d:%02dZ");
}

std::string dateDescription(Date date) {
    return inUtc(date, "%04ld-%02d-%02d %02d:%02d:%02d +0000");
}

} // namespace drossbin
