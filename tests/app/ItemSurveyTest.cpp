#include "app/ItemSurvey.h"

#include "Harness.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace drossbin {
namespace {

using test::item;
using test::selected;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using enum DiskCategory;

ItemSurvey surveyOf(const ScanResult& result, std::optional<DiskCategory> shown = {}) {
    return ItemSurvey::of(result, shown);
}

std::vector<std::string> rowsOf(const ScanResult& result, std::optional<DiskCategory> shown) {
    std::vector<std::string> names;
    for (const DiskItem& row : surveyOf(result, shown).rows) {
        names.push_back(row.name);
    }
    return names;
}

TEST(ItemSurvey, of_no_items_is_all_zero) {
    const ScanResult result;
    const ItemSurvey survey = surveyOf(result, programCaches);
    EXPECT_EQ(survey.totalSize, 0);
    EXPECT_EQ(survey.selectedSize, 0);
    EXPECT_EQ(survey.count, 0);
    EXPECT_EQ(survey.selectedCount, 0);
    EXPECT_THAT(survey.rows, IsEmpty());
    EXPECT_FALSE(survey.hasBrowserData);
    for (const DiskCategory category : allDiskCategories) {
        EXPECT_EQ(survey.of(category).count, 0);
        EXPECT_EQ(survey.of(category).size, 0);
    }
}

TEST(ItemSurvey, agrees_with_the_session_under_every_filter) {
    ScanResult result;
    result.items = {item("npm", 5, packageCaches), selected(item("Safari", 70, programCaches)),
                    selected(item("pip", 300, packageCaches)), item("app.log", 1, logFiles)};
    for (const std::string text : {"", "P", "ada", "safari", "nothing", "", "npm"}) {
        result.searchText = text;
        const ItemSurvey survey = surveyOf(result, packageCaches);
        EXPECT_EQ(survey.count, 4);
        EXPECT_EQ(survey.totalSize, result.totalSize());
        EXPECT_EQ(survey.selectedSize, result.selectedSize());
        EXPECT_EQ(survey.selectedCount, result.selectedCount());
        for (const DiskCategory category : allDiskCategories) {
            EXPECT_EQ(survey.of(category).count, result.itemsFor(category).size()) << text;
            EXPECT_EQ(survey.of(category).size, result.categorySize(category)) << text;
        }
    }
}

TEST(ItemSurvey, counts_what_is_selected_of_the_category_only_where_the_filter_lets_it_through) {
    ScanResult result;
    result.items = {selected(item("npm", 5, packageCaches)),
                    selected(item("pip", 7, packageCaches)), item("yarn", 11, packageCaches),
                    selected(item("Mail", 13, appData))};
    EXPECT_EQ(surveyOf(result).of(packageCaches).selectedCount, 2);
    EXPECT_EQ(surveyOf(result).of(packageCaches).selectedSize, 12);
    result.searchText = "pip";
    EXPECT_EQ(surveyOf(result).of(packageCaches).selectedCount, 1);
    EXPECT_EQ(surveyOf(result).of(packageCaches).selectedSize, 7);
    EXPECT_EQ(surveyOf(result).selectedCount, 3);
    EXPECT_EQ(surveyOf(result).selectedSize, 25);
}

TEST(ItemSurvey, lists_the_rows_of_the_category_shown_and_of_no_other) {
    ScanResult result;
    result.items = {item("a", 9, logFiles), item("b", 8, appData), item("c", 7, logFiles)};
    EXPECT_THAT(rowsOf(result, logFiles), ElementsAre("a", "c"));
    EXPECT_THAT(rowsOf(result, oldDownloads), IsEmpty());
    EXPECT_THAT(rowsOf(result, std::nullopt), IsEmpty());
}

TEST(ItemSurvey, lists_the_rows_that_the_filter_lets_through) {
    ScanResult result;
    result.items = {item("npm", 5, logFiles), item("pip", 4, logFiles), item("zip", 3, logFiles)};
    result.searchText = "IP";
    EXPECT_THAT(rowsOf(result, logFiles), ElementsAre("pip", "zip"));
}

TEST(ItemSurvey, sorts_rows_largest_first_and_leaves_equal_ones_in_list_order) {
    ScanResult result;
    constexpr std::int64_t huge = std::numeric_limits<std::int64_t>::max() - 100;
    result.items = {item("a", 5, logFiles), item("b", 9, logFiles), item("c", 5, logFiles),
                    item("d", huge, logFiles), item("e", 9, logFiles)};
    EXPECT_THAT(rowsOf(result, logFiles), ElementsAre("d", "b", "e", "a", "c"));
}

TEST(ItemSurvey, leaves_many_rows_of_one_size_in_list_order) {
    ScanResult result;
    std::vector<DiskItem> items;
    std::vector<std::string> names;
    for (int number = 0; number < 100; ++number) {
        names.push_back(std::to_string(number));
        items.push_back(item(names.back(), 5, logFiles));
    }
    items.push_back(item("largest", 6, logFiles));
    names.insert(names.begin(), "largest");
    result.items = items;
    EXPECT_EQ(rowsOf(result, logFiles), names);
}

TEST(ItemSurvey, finds_browser_data_among_the_selected_only) {
    ScanResult result;
    result.items = {item("Safari", 2), selected(item("Spotify", 1))};
    EXPECT_FALSE(surveyOf(result).hasBrowserData);
    result.toggleSelectionFor(result.items.get().front());
    EXPECT_TRUE(surveyOf(result).hasBrowserData);
}

TEST(ItemSurvey, finds_browser_data_that_the_filter_hides_or_another_category_holds) {
    ScanResult result;
    result.items = {selected(item("com.apple.SAFARI", 2, appData))};
    result.searchText = "nothing";
    EXPECT_TRUE(surveyOf(result, logFiles).hasBrowserData);
}

TEST(ItemSurveyDeathTest, stops_the_program_when_a_sum_exceeds_64_bits) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    ScanResult result;
    result.items = {selected(item("a", most)), selected(item("b", 1))};
    EXPECT_DEATH(surveyOf(result), "a sum of sizes exceeds 64 bits");
    result.items = {selected(item("a", most)), selected(item("b", 0))};
    EXPECT_EQ(surveyOf(result).of(programCaches).selectedSize, most);
}

} // namespace
} // namespace drossbin
