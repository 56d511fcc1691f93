#include "app/ShownValues.h"

#include "Harness.h"
#include "platform/words/Locale.h"

#include <gtest/gtest.h>

namespace drossbin {
namespace {

using test::item;
using test::selected;
using enum DiskCategory;

constexpr std::int64_t terabyte = 1'000'000'000'000;

struct ShownValuesOf : ::testing::Test {
    [[nodiscard]] ShownValues take(std::optional<DiskCategory> shown = {},
                                   std::int64_t diskSpace = terabyte) const {
        return ShownValues::of(result, ItemSurvey::of(result, shown), shown, diskSpace);
    }

    ScanResult result;
};

TEST_F(ShownValuesOf, nothing_says_zero) {
    const ShownValues values = take();
    EXPECT_EQ(values.totalSummary, "0 items found · Zero KB total");
    EXPECT_EQ(values.selectionSummary, "0 items · Zero KB");
    EXPECT_EQ(values.confirmationTitle, "Delete 0 items?");
    EXPECT_EQ(values.bytesFoundText, "Zero KB");
    EXPECT_EQ(values.freedSpaceText, "Zero KB");
    EXPECT_EQ(values.deletePercentText, "0%");
    EXPECT_FALSE(values.hasSelection);
}

TEST_F(ShownValuesOf, items_sums_all_of_them_whatever_the_search_text_hides) {
    std::vector<DiskItem> items(36, item("a", 100'000'000));
    items.push_back(item("b", 8'800'000'000, logFiles));
    result.items = items;
    EXPECT_EQ(take().totalSummary, "37 items found · 12.4 GB total");
    result.searchText = "nothing";
    EXPECT_EQ(take().totalSummary, "37 items found · 12.4 GB total");
}

TEST_F(ShownValuesOf, a_selection_counts_and_sizes_it_over_all_categories) {
    result.items = {selected(item("a", 3'000'000'000)), selected(item("b", 1, logFiles)),
                    selected(item("c", 200'000'000, appData)), item("d", 50)};
    result.searchText = "nothing";
    const ShownValues values = take(oldDownloads);
    EXPECT_TRUE(values.hasSelection);
    EXPECT_EQ(values.deleteLabel, "Delete 3.2 GB");
    EXPECT_EQ(values.selectedSizeText, "3.2 GB");
    EXPECT_EQ(values.selectionSummary, "3 items · 3.2 GB");
    EXPECT_EQ(values.confirmationTitle, "Delete 3 items?");
}

TEST_F(ShownValuesOf, one_selected_item_has_no_singular) {
    result.items = {selected(item("a", 1))};
    EXPECT_EQ(take().confirmationTitle, "Delete 1 items?");
    EXPECT_EQ(take().selectionSummary, "1 items · 1 byte");
}

TEST_F(ShownValuesOf, a_selected_item_of_no_bytes_is_a_selection_that_reclaims_nothing) {
    result.items = {selected(item("a", 0))};
    EXPECT_TRUE(take().hasSelection);
    EXPECT_EQ(take().deleteLabel, "Delete Zero KB");
    EXPECT_FALSE(take().isReclaiming);
}

TEST_F(ShownValuesOf, a_category_describes_it_by_what_the_search_text_lets_through) {
    result.items = {item("npm", 3'000'000, packageCaches),
                    selected(item("pip", 1'000'000, packageCaches)), selected(item("Mail", 7))};
    ShownValues values = take(packageCaches);
    EXPECT_EQ(values.categoryName, "Package Caches");
    EXPECT_EQ(values.categoryIcon, "shippingbox");
    EXPECT_EQ(values.categorySubtitle, "npm, Homebrew, pip, yarn");
    EXPECT_EQ(values.categorySizeText, "4 MB");
    EXPECT_EQ(values.categorySelectionSummary, "1 selected · 1 MB");
    result.searchText = "npm";
    values = take(packageCaches);
    EXPECT_EQ(values.categorySizeText, "3 MB");
    EXPECT_EQ(values.categorySelectionSummary, "0 selected · Zero KB");
}

TEST_F(ShownValuesOf, no_category_leaves_its_texts_empty) {
    result.items = {item("npm", 3'000'000, packageCaches)};
    EXPECT_EQ(take().categoryName, "");
    EXPECT_EQ(take().categorySelectionSummary, "");
}

TEST_F(ShownValuesOf, an_empty_category_says_zero) {
    EXPECT_EQ(take(appData).categorySizeText, "Zero KB");
    EXPECT_EQ(take(appData).categorySelectionSummary, "0 selected · Zero KB");
}

TEST_F(ShownValuesOf, a_selection_warns_of_browser_data) {
    result.items = {selected(item("Archive Utility", 1)), item("Spotify", 1)};
    EXPECT_TRUE(take().hasBrowserData);
    result.deselectAll();
    EXPECT_FALSE(take().hasBrowserData);
}

TEST_F(ShownValuesOf, the_meter_tells_what_was_found_until_a_byte_is_selected) {
    result.items = {item("a", 1), item("b", 99'999'999'999)};
    ShownValues values = take();
    EXPECT_EQ(values.meterCaption, "Cache Found");
    EXPECT_EQ(values.meterText, "100 GB");
    EXPECT_FALSE(values.isReclaiming);
    EXPECT_EQ(values.selectedShare, 0);
    result.toggleSelectionFor(result.items.get().front());
    values = take();
    EXPECT_EQ(values.meterCaption, "Space to Reclaim");
    EXPECT_EQ(values.meterText, "1 byte");
    EXPECT_TRUE(values.isReclaiming);
}

TEST_F(ShownValuesOf, the_meter_has_raw_shares_of_the_disk_beyond_all_of_it_too) {
    result.items = {item("a", 1'500), selected(item("b", 500))};
    EXPECT_EQ(take({}, 8'000).foundShare, 0.25);
    EXPECT_EQ(take({}, 8'000).selectedShare, 0.0625);
    EXPECT_EQ(take({}, 1'000).foundShare, 2);
    EXPECT_EQ(take({}, 0).foundShare, 0);
    EXPECT_EQ(take({}, -1).selectedShare, 0);
}

TEST_F(ShownValuesOf, a_deletion_truncates_its_percentage) {
    const std::vector<std::pair<double, QString>> cases{
        {0.0, "0%"}, {0.5, "50%"}, {0.999, "99%"}, {1.0, "100%"}, {1.5, "100%"}};
    for (const auto& [fraction, text] : cases) {
        result.deleteProgress = fraction;
        EXPECT_EQ(take().deletePercentText, text);
        EXPECT_EQ(take().deleteProgress, fraction);
    }
}

TEST_F(ShownValuesOf, a_run_tells_its_progress) {
    result.isScanning = true;
    result.scanProgress = 0.4;
    result.currentTask = "Scanning logs...";
    result.bytesFoundSoFar = 40'000'000'000;
    result.freedSpace = 3'200'000'000;
    const ShownValues values = take();
    EXPECT_TRUE(values.isScanning);
    EXPECT_EQ(values.scanProgress, 0.4);
    EXPECT_EQ(values.currentTask, "Scanning logs...");
    EXPECT_EQ(values.bytesFoundText, "40 GB");
    EXPECT_EQ(values.freedSpaceText, "3.2 GB");
}

TEST_F(ShownValuesOf, many_items_has_the_separators_of_the_locale) {
    result.items = std::vector<DiskItem>(100'000, selected(item("a", 1)));
    EXPECT_EQ(take().totalSummary, "100,000 items found · 100 KB total");
    EXPECT_EQ(take().confirmationTitle, "Delete 100,000 items?");
    EXPECT_EQ(take(programCaches).categorySelectionSummary, "100,000 selected · 100 KB");
    Locale::setCurrent({"de_DE"});
    EXPECT_EQ(take().confirmationTitle, "Delete 100.000 items?");
    Locale::setCurrent({"en_US"});
}

} // namespace
} // namespace drossbin
