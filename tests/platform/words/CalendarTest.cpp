#include "platform/words/Calendar.h"

#include "support/ScopedTimeZone.h"

#include <gtest/gtest.h>

#include <limits>

namespace drossbin {
namespace {

using namespace std::chrono_literals;
using std::chrono::sys_days;
using test::ScopedTimeZone;

TEST(Calendar, moves_a_date_by_whole_days) {
    const ScopedTimeZone zone("UTC");
    const Date date = sys_days{2026y / 3 / 31} + 14h + 5min + 9s;
    EXPECT_EQ(Calendar::dateByAddingDays(-30, date), sys_days{2026y / 3 / 1} + 14h + 5min + 9s);
    EXPECT_EQ(Calendar::dateByAddingDays(1, date), sys_days{2026y / 4 / 1} + 14h + 5min + 9s);
    EXPECT_EQ(Calendar::dateByAddingDays(0, date), date);
}

TEST(Calendar, keeps_the_time_of_day_when_clocks_go_forward) {
    const ScopedTimeZone zone("Europe/Berlin");
    const Date noonInSummer = sys_days{2026y / 4 / 10} + 10h;
    EXPECT_EQ(Calendar::dateByAddingDays(-30, noonInSummer), sys_days{2026y / 3 / 11} + 11h);
}

TEST(Calendar, keeps_the_time_of_day_when_clocks_go_back) {
    const ScopedTimeZone zone("Europe/Berlin");
    const Date noonInWinter = sys_days{2026y / 11 / 10} + 11h;
    EXPECT_EQ(Calendar::dateByAddingDays(-30, noonInWinter), sys_days{2026y / 10 / 11} + 10h);
}

TEST(Calendar, steps_over_an_hour_that_the_clocks_skip) {
    const ScopedTimeZone zone("Europe/Berlin");
    const Date halfPastTwo = sys_days{2026y / 3 / 28} + 1h + 30min;
    EXPECT_EQ(Calendar::dateByAddingDays(1, halfPastTwo), sys_days{2026y / 3 / 29} + 1h + 30min);
}

TEST(Calendar, keeps_what_is_finer_than_a_millisecond) {
    const ScopedTimeZone zone("UTC");
    const Date date = sys_days{2026y / 3 / 31} + 123'456us;
    EXPECT_EQ(Calendar::dateByAddingDays(-30, date), sys_days{2026y / 3 / 1} + 123'456us);
    EXPECT_EQ(Calendar::dateByAddingDays(-1, Date{} - 1us), Date{} - 24h - 1us);
}

TEST(Calendar, forms_no_date_beyond_what_a_date_can_hold) {
    const ScopedTimeZone zone("UTC");
    EXPECT_EQ(Calendar::dateByAddingDays(-30, Date::min()), std::nullopt);
    EXPECT_EQ(Calendar::dateByAddingDays(30, Date::max()), std::nullopt);
    EXPECT_EQ(Calendar::dateByAddingDays(std::numeric_limits<int>::max(), Date{}), std::nullopt);
    EXPECT_EQ(Calendar::dateByAddingDays(std::numeric_limits<int>::min(), Date{}), std::nullopt);
    EXPECT_EQ(Calendar::dateByAddingDays(-30, sys_days{9999y / 12 / 31}), sys_days{9999y / 12 / 1});
}

} // namespace
} // namespace drossbin
