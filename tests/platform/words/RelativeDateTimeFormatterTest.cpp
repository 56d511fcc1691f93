#include "platform/words/RelativeDateTimeFormatter.h"

#include "support/ScopedTimeZone.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace drossbin {
namespace {

using namespace std::chrono_literals;
using std::chrono::sys_days;
using test::ScopedTimeZone;
using Style = RelativeDateTimeFormatter::UnitsStyle;

constexpr Date reference = sys_days{2026y / 3 / 31} + 14h + 5min + 9s;

std::string full(Date date, const char* locale = "en_US") {
    return RelativeDateTimeFormatter::localizedString(date, reference, Style::full, {locale});
}

std::string abbreviated(Date date, const char* locale = "en_US") {
    return RelativeDateTimeFormatter::localizedString(date, reference, Style::abbreviated,
                                                      {locale});
}

constexpr Date daysAgo(int days) {
    return reference - days * 24h;
}

/// The dates of every table below: now, units of each size in the past, and two in the future.
std::vector<std::string> phrases(std::string (*phrase)(Date, const char*), const char* locale) {
    const ScopedTimeZone zone("Europe/Berlin");
    std::vector<std::string> all;
    for (const Date date : {reference, reference - 59s, reference - 2min, reference - 1h,
                            daysAgo(2), daysAgo(30), Date(sys_days{2026y / 1 / 20}),
                            Date(sys_days{2023y / 3 / 30}), reference + 1h, reference + 240h}) {
        all.push_back(phrase(date, locale));
    }
    return all;
}

using Phrases = std::vector<std::string>;

TEST(RelativeDateTimeFormatter, speaks_english_in_short) {
    EXPECT_EQ(phrases(abbreviated, "en_US"),
              (Phrases{"in 0 sec.", "59 sec. ago", "2 min. ago", "1 hr. ago", "2 days ago",
                       "4 wk. ago", "2 mo. ago", "3 yr. ago", "in 1 hr.", "in 1 wk."}));
}

TEST(RelativeDateTimeFormatter, speaks_english_in_full) {
    EXPECT_EQ(
        phrases(full, "en_US"),
        (Phrases{"in 0 seconds", "59 seconds ago", "2 minutes ago", "1 hour ago", "2 days ago",
                 "4 weeks ago", "2 months ago", "3 years ago", "in 1 hour", "in 1 week"}));
}

TEST(RelativeDateTimeFormatter, speaks_german) {
    EXPECT_EQ(
        phrases(abbreviated, "de_DE"),
        (Phrases{"in 0 Sek.", "vor 59 Sek.", "vor 2 Min.", "vor 1 Std.", "vor 2 Tagen",
                 "vor 4 Wochen", "vor 2\u00A0Monaten", "vor 3 Jahren", "in 1 Std.", "in 1 Woche"}));
    EXPECT_EQ(
        phrases(full, "de_DE"),
        (Phrases{"in 0 Sekunden", "vor 59 Sekunden", "vor 2 Minuten", "vor 1 Stunde", "vor 2 Tagen",
                 "vor 4 Wochen", "vor 2 Monaten", "vor 3 Jahren", "in 1 Stunde", "in 1 Woche"}));
}

TEST(RelativeDateTimeFormatter, speaks_french) {
    EXPECT_EQ(phrases(abbreviated, "fr_FR"),
              (Phrases{"dans 0\u00A0s", "il y a 59\u00A0s", "il y a 2\u00A0min", "il y a 1\u00A0h",
                       "il y a 2\u00A0j", "il y a 4 sem.", "il y a 2 m.", "il y a 3 a",
                       "dans 1\u00A0h", "dans 1 sem."}));
    EXPECT_EQ(phrases(full, "fr_FR"),
              (Phrases{"dans 0 seconde", "il y a 59 secondes", "il y a 2 minutes", "il y a 1 heure",
                       "il y a 2 jours", "il y a 4 semaines", "il y a 2 mois", "il y a 3 ans",
                       "dans 1 heure", "dans 1 semaine"}));
}

TEST(RelativeDateTimeFormatter, speaks_arabic_with_its_own_digits) {
    const Phrases expected{"خلال ٠ ثانية",    "قبل ٥٩ ثانية",   "قبل دقيقتين", "قبل ساعة واحدة",
                           "قبل يومين",       "قبل ٤ أسابيع",   "قبل شهرين",   "قبل ٣ سنوات",
                           "خلال ساعة واحدة", "خلال أسبوع واحد"};
    EXPECT_EQ(phrases(abbreviated, "ar_EG"), expected);
    EXPECT_EQ(phrases(full, "ar_EG"), expected);
}

TEST(RelativeDateTimeFormatter, speaks_japanese) {
    const Phrases expected{"0 秒後",   "59 秒前",  "2 分前", "1 時間前", "2 日前",
                           "4 週間前", "2 か月前", "3 年前", "1 時間後", "1 週間後"};
    EXPECT_EQ(phrases(abbreviated, "ja_JP"), expected);
    EXPECT_EQ(phrases(full, "ja_JP"), expected);
}

TEST(RelativeDateTimeFormatter, takes_the_largest_unit_and_truncates_it) {
    const ScopedTimeZone zone("UTC");
    EXPECT_EQ(full(reference - 60s), "1 minute ago");
    EXPECT_EQ(full(reference - 59min - 59s), "59 minutes ago");
    EXPECT_EQ(full(reference - 60min), "1 hour ago");
    EXPECT_EQ(full(reference - 24h + 1s), "23 hours ago");
    EXPECT_EQ(full(daysAgo(1)), "1 day ago");
    EXPECT_EQ(full(daysAgo(6) - 23h), "6 days ago");
    EXPECT_EQ(full(daysAgo(7)), "1 week ago");
    EXPECT_EQ(full(daysAgo(27)), "3 weeks ago");
    EXPECT_EQ(full(sys_days{2025y / 4 / 1}), "11 months ago");
    EXPECT_EQ(full(sys_days{2025y / 3 / 31}), "1 year ago");
}

TEST(RelativeDateTimeFormatter, counts_months_by_the_calendar) {
    const ScopedTimeZone zone("UTC");
    const Date endOfFebruary = sys_days{2026y / 2 / 28} + 14h + 5min + 9s;
    EXPECT_EQ(full(endOfFebruary), "1 month ago");
    EXPECT_EQ(full(endOfFebruary + 1s), "4 weeks ago");
}

TEST(RelativeDateTimeFormatter, counts_days_in_the_local_time_zone) {
    // Where clocks went forward in between, three days by the clock are 71 hours.
    const Date threeDaysByTheClock = reference - 71h;
    const ScopedTimeZone zone("Europe/Berlin");
    EXPECT_EQ(full(threeDaysByTheClock), "3 days ago");
    EXPECT_EQ(full(threeDaysByTheClock + 1s), "2 days ago");
    const ScopedTimeZone withoutSummerTime("UTC");
    EXPECT_EQ(full(threeDaysByTheClock), "2 days ago");
}

TEST(RelativeDateTimeFormatter, names_less_than_a_second_as_zero_seconds_to_come) {
    const ScopedTimeZone zone("UTC");
    EXPECT_EQ(abbreviated(reference), "in 0 sec.");
    EXPECT_EQ(abbreviated(reference - 999ms), "in 0 sec.");
    EXPECT_EQ(abbreviated(reference + 999ms), "in 0 sec.");
    EXPECT_EQ(abbreviated(reference - 1s), "1 sec. ago");
    EXPECT_EQ(abbreviated(reference + 1s), "in 1 sec.");
}

TEST(RelativeDateTimeFormatter, never_says_yesterday_or_tomorrow) {
    const ScopedTimeZone zone("UTC");
    EXPECT_EQ(full(daysAgo(1)), "1 day ago");
    EXPECT_EQ(full(reference + 24h), "in 1 day");
}

TEST(RelativeDateTimeFormatter, survives_the_furthest_dates) {
    const ScopedTimeZone zone("UTC");
    EXPECT_EQ(full(Date::max()), "in 292,220 years");
    EXPECT_EQ(full(Date::min()), "292,327 years ago");
    EXPECT_EQ(RelativeDateTimeFormatter::localizedString(Date::max(), Date::min(), Style::full,
                                                         {"en_US"}),
              "in 584,548 years");
}

} // namespace
} // namespace drossbin
