#include "platform/words/ISO8601DateFormatter.h"

#include "support/ScopedTimeZone.h"

#include <gtest/gtest.h>

#include <ctime>

namespace drossbin {
namespace {

using namespace std::chrono_literals;
using std::chrono::sys_days;

constexpr Date sample = sys_days{2026y / 3 / 1} + 14h + 5min + 9s;

TEST(ISO8601DateFormatter, writes_utc_to_the_second) {
    EXPECT_EQ(ISO8601DateFormatter::string(sample), "2026-03-01T14:05:09Z");
    EXPECT_EQ(ISO8601DateFormatter::string(Date{}), "1970-01-01T00:00:00Z");
}

TEST(ISO8601DateFormatter, writes_utc_wherever_the_machine_is) {
    const test::ScopedTimeZone zone("Asia/Kolkata");
    const std::time_t sampleTime = std::chrono::system_clock::to_time_t(sample);
    ASSERT_EQ(std::localtime(&sampleTime)->tm_hour, 19) << "the system knows no time zones";
    EXPECT_EQ(ISO8601DateFormatter::string(sample), "2026-03-01T14:05:09Z");
    EXPECT_EQ(dateDescription(sample), "2026-03-01 14:05:09 +0000");
}

TEST(ISO8601DateFormatter, cuts_fractions_of_a_second_off) {
    EXPECT_EQ(ISO8601DateFormatter::string(sample + 999'999us), "2026-03-01T14:05:09Z");
    EXPECT_EQ(ISO8601DateFormatter::string(Date{} - 1us), "1969-12-31T23:59:59Z");
}

TEST(ISO8601DateFormatter, writes_years_with_four_digits_at_least) {
    EXPECT_EQ(ISO8601DateFormatter::string(sys_days{800y / 12 / 25}), "0800-12-25T00:00:00Z");
    EXPECT_EQ(ISO8601DateFormatter::string(sys_days{12026y / 1 / 2}), "12026-01-02T00:00:00Z");
}

TEST(ISO8601DateFormatter, survives_the_furthest_dates) {
    EXPECT_EQ(ISO8601DateFormatter::string(Date::max()), "294247-01-10T04:00:54Z");
    EXPECT_EQ(ISO8601DateFormatter::string(Date::min()), "-290308-12-21T19:59:05Z");
}

TEST(DateDescription, writes_utc_in_words_that_sort) {
    EXPECT_EQ(dateDescription(sample), "2026-03-01 14:05:09 +0000");
    EXPECT_EQ(dateDescription(sample + 999'999us), "2026-03-01 14:05:09 +0000");
    EXPECT_EQ(dateDescription(Date::max()), "294247-01-10 04:00:54 +0000");
}

} // namespace
} // namespace drossbin
