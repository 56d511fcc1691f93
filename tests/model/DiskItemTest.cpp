#include "model/DiskItem.h"

#include "support/ScopedLocale.h"
#include "support/ScopedTimeZone.h"

#include <gtest/gtest.h>

namespace drossbin {
namespace {

using namespace std::chrono_literals;
using std::chrono::sys_days;

constexpr Date reference = sys_days{2026y / 3 / 31} + 14h + 5min + 9s;

class DiskItemTexts : public testing::Test {
  private:
    test::ScopedLocale m_locale{{"en_US"}};
    test::ScopedTimeZone m_zone{"Europe/Berlin"};
};

TEST_F(DiskItemTexts, show_a_dash_for_an_unknown_date) {
    EXPECT_EQ(DiskItem().formattedDate(reference), "—");
}

TEST_F(DiskItemTexts, show_a_past_date_in_short_units) {
    EXPECT_EQ(DiskItem{.lastAccessed = reference - 30 * 24h}.formattedDate(reference), "4 wk. ago");
    EXPECT_EQ(DiskItem{.lastAccessed = sys_days{2026y / 1 / 20}}.formattedDate(reference),
              "2 mo. ago");
}

TEST_F(DiskItemTexts, show_a_future_date_as_such) {
    EXPECT_EQ(DiskItem{.lastAccessed = reference + 1h}.formattedDate(reference), "in 1 hr.");
}

TEST_F(DiskItemTexts, take_the_present_moment_for_reference) {
    EXPECT_EQ(DiskItem{.lastAccessed = now() - 2 * 24h - 1h}.formattedDate(), "2 days ago");
}

TEST_F(DiskItemTexts, show_the_size_in_file_style) {
    EXPECT_EQ(DiskItem{.size = 0}.formattedSize(), "Zero KB");
    EXPECT_EQ(DiskItem{.size = 3'200'000'000}.formattedSize(), "3.2 GB");
}

TEST_F(DiskItemTexts, follow_the_users_locale) {
    const test::ScopedLocale german({"de_DE"});
    const DiskItem item{.size = 3'200'000'000, .lastAccessed = reference - 1h};
    EXPECT_EQ(item.formattedSize(), "3,2\u00A0GB");
    EXPECT_EQ(item.formattedDate(reference), "vor 1 Std.");
}

TEST(DiskItem, gets_an_identity_of_its_own_that_its_copies_keep) {
    const DiskItem item;
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): it is the subject
    const DiskItem copy = item;
    EXPECT_EQ(copy.id, item.id);
    EXPECT_NE(DiskItem().id, item.id);
}

TEST(DiskItem, is_made_unselected_without_date_and_note) {
    const DiskItem item;
    EXPECT_FALSE(item.isSelected);
    EXPECT_EQ(item.lastAccessed, std::nullopt);
    EXPECT_EQ(item.safetyNote, std::nullopt);
}

} // namespace
} // namespace drossbin
