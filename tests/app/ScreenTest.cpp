#include "Harness.h"

#include <gtest/gtest.h>

namespace drossbin {
namespace {

using test::item;
using test::servicesThatFind;

struct Screen : ::testing::Test {
    ContentView view{servicesThatFind({})};
};

TEST_F(Screen, is_the_landing_before_any_scan) {
    EXPECT_EQ(view.screen(), ContentView::Landing);
    view.setSelectedCategory(2);
    EXPECT_EQ(view.screen(), ContentView::Landing);
}

// A screen that is made before the state was read must not say that a scan runs.
TEST_F(Screen, shows_no_run_before_any_began) {
    EXPECT_FALSE(view.shown().isScanning);
    EXPECT_FALSE(view.shown().isDeleting);
    EXPECT_FALSE(view.shown().showConfirmation);
    EXPECT_FALSE(view.shown().showDeletionComplete);
    EXPECT_FALSE(view.shown().hasSelection);
    EXPECT_FALSE(view.shown().hasBrowserData);
}

TEST_F(Screen, is_the_progress_while_a_scan_runs_whatever_was_shown_before) {
    view.scanResult().isScanning = true;
    EXPECT_EQ(view.screen(), ContentView::Scanning);
    view.scanResult().hasScanned = true;
    view.scanResult().items = {item("a", 1)};
    view.setSelectedCategory(0);
    EXPECT_EQ(view.screen(), ContentView::Scanning);
}

TEST_F(Screen, is_the_empty_state_when_nothing_was_found_even_with_a_category_chosen) {
    view.scanResult().hasScanned = true;
    EXPECT_EQ(view.screen(), ContentView::Empty);
    view.setSelectedCategory(0);
    EXPECT_EQ(view.screen(), ContentView::Empty);
}

TEST_F(Screen, is_the_overview_without_a_category_and_the_list_with_one) {
    view.scanResult().hasScanned = true;
    view.scanResult().items = {item("a", 1)};
    EXPECT_EQ(view.screen(), ContentView::Overview);
    view.setSelectedCategory(4);
    EXPECT_EQ(view.screen(), ContentView::Category);
    view.setSelectedCategory(-1);
    EXPECT_EQ(view.screen(), ContentView::Overview);
}

TEST_F(Screen, goes_back_from_the_list_to_the_overview) {
    view.scanResult().hasScanned = true;
    view.scanResult().items = {item("a", 1)};
    view.setSelectedCategory(2);
    view.goBack();
    EXPECT_EQ(view.screen(), ContentView::Overview);
}

TEST_F(Screen, keeps_the_category_chosen_while_its_list_is_not_shown) {
    view.scanResult().hasScanned = true;
    view.setSelectedCategory(2);
    view.goBack();
    EXPECT_EQ(view.selectedCategory(), 2);
    view.scanResult().items = {item("a", 1)};
    view.scanResult().isScanning = true;
    view.goBack();
    EXPECT_EQ(view.selectedCategory(), 2);
}

TEST_F(Screen, is_never_the_landing_again_after_a_scan) {
    test::scan(view);
    EXPECT_EQ(view.screen(), ContentView::Empty);
    view.scanResult().items = {item("a", 1)};
    view.scanResult().items = {};
    EXPECT_EQ(view.screen(), ContentView::Empty);
}

TEST_F(Screen, takes_a_place_beyond_the_categories_for_none) {
    view.setSelectedCategory(4);
    EXPECT_EQ(view.selectedCategory(), 4);
    view.setSelectedCategory(5);
    EXPECT_EQ(view.selectedCategory(), -1);
    view.setSelectedCategory(0);
    view.setSelectedCategory(-7);
    EXPECT_EQ(view.selectedCategory(), -1);
}

TEST_F(Screen, starts_without_sheets_category_or_search_text) {
    EXPECT_FALSE(view.scanResult().showConfirmation);
    EXPECT_FALSE(view.shown().showDeletionComplete);
    EXPECT_FALSE(view.shown().isDeleting);
    EXPECT_EQ(view.selectedCategory(), -1);
    EXPECT_EQ(view.searchText(), "");
    EXPECT_FALSE(view.desktop()->reducesMotion());
    EXPECT_FALSE(view.optionHeld());
}

} // namespace
} // namespace drossbin
