#include "app/ItemSurvey.h"

#include "Session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace drossbin {
namespace {

using test::item;
using test::selected;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using enum DiskCategory;

ItemSurvey surveyOf(const ScanResult& result, std::optional<DiskCategory> shown = {}) {
    return ItemSurveyor().survey(result, shown);
}

TEST(ItemSurvey, of_no_items_is_all_zero) {
    const ScanResult result;
    const ItemSurvey survey = surveyOf(result, programCaches);
    EXPECT_EQ(survey.totalSize, 0);
    EXPECT_EQ(survey.selectedSize, 0);
    EXPECT_THAT(survey.selected, IsEmpty());
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
    ItemSurveyor surveyor;
    for (const std::string text : {"", "P", "ada", "safari", "nothing", "", "npm"}) {
        result.searchText = text;
        const ItemSurvey survey = surveyor.survey(result, packageCaches);
        EXPECT_EQ(survey.totalSize, result.totalSize());
        EXPECT_EQ(survey.selectedSize, result.selectedSize());
        EXPECT_EQ(survey.selected.size(), result.selectedCount());
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
    EXPECT_EQ(surveyOf(result).selectedSize, 25);
    EXPECT_THAT(surveyOf(result).selected, ElementsAre(0, 1, 3));
}

TEST(ItemSurvey, lists_the_rows_of_the_category_shown_and_of_no_other) {
    ScanResult result;
    result.items = {item("a", 9, logFiles), item("b", 8, appData), item("c", 7, logFiles)};
    EXPECT_THAT(surveyOf(result, logFiles).rows, ElementsAre(0, 2));
    EXPECT_THAT(surveyOf(result, oldDownloads).rows, IsEmpty());
    EXPECT_THAT(surveyOf(result, std::nullopt).rows, IsEmpty());
}

TEST(ItemSurvey, tells_of_each_row_whether_it_is_selected) {
    ScanResult result;
    result.items = {selected(item("a", 5, logFiles)), item("b", 9, logFiles),
                    selected(item("c", 8, appData)), selected(item("d", 7, logFiles))};
    EXPECT_THAT(surveyOf(result, logFiles).rows, ElementsAre(1, 3, 0));
    EXPECT_THAT(surveyOf(result, logFiles).areRowsSelected, ElementsAre(false, true, true));
}

TEST(ItemSurvey, sees_a_selection_that_it_was_told_of) {
    ScanResult result;
    result.items = {item("a", 5, logFiles), item("b", 4, logFiles)};
    ItemSurveyor surveyor;
    EXPECT_EQ(surveyor.survey(result, logFiles).selectedSize, 0);
    result.toggleSelectionFor(result.items.get().back());
    surveyor.noteSelection();
    const ItemSurvey survey = surveyor.survey(result, logFiles);
    EXPECT_EQ(survey.selectedSize, 4);
    EXPECT_EQ(survey.of(logFiles).selectedCount, 1);
    EXPECT_THAT(survey.areRowsSelected, ElementsAre(false, true));
}

TEST(ItemSurvey, filters_another_list_by_the_same_text) {
    ScanResult result;
    result.searchText = "b";
    ItemSurveyor surveyor;
    result.items = {item("a", 5, logFiles), item("b", 4, logFiles)};
    EXPECT_THAT(surveyor.survey(result, logFiles).rows, ElementsAre(1));
    result.items = {item("b", 5, logFiles), item("a", 4, logFiles)};
    EXPECT_THAT(surveyor.survey(result, logFiles).rows, ElementsAre(0));
}

TEST(ItemSurvey, sorts_rows_largest_first_and_leaves_equal_ones_in_list_order) {
    ScanResult result;
    constexpr std::int64_t huge = std::numeric_limits<std::int64_t>::max() - 100;
    result.items = {item("a", 5, logFiles), item("b", 9, logFiles), item("c", 5, logFiles),
                    item("d", huge, logFiles), item("e", 9, logFiles)};
    EXPECT_THAT(surveyOf(result, logFiles).rows, ElementsAre(3, 1, 4, 0, 2));
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

TEST(ItemSurvey, forgets_the_list_before_when_another_of_the_same_length_comes) {
    ScanResult result;
    result.searchText = "safari";
    ItemSurveyor surveyor;
    result.items = {selected(item("Safari", 2))};
    EXPECT_TRUE(surveyor.survey(result, programCaches).hasBrowserData);
    result.items = {selected(item("Spotify", 2))};
    const ItemSurvey survey = surveyor.survey(result, programCaches);
    EXPECT_FALSE(survey.hasBrowserData);
    EXPECT_THAT(survey.rows, IsEmpty());
}

TEST(ItemSurvey, gives_the_list_the_same_identity_after_selecting_and_another_after_a_scan) {
    ScanResult result;
    result.items = {item("a", 1), item("b", 1)};
    const ListIdentity list = surveyOf(result).list;
    result.selectAllSafe();
    EXPECT_EQ(surveyOf(result).list, list);
    result.items = {item("a", 1), item("b", 1)};
    EXPECT_NE(surveyOf(result).list, list);
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
