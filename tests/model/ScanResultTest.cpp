#include "model/ScanResult.h"

#include "support/ScopedLocale.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace drossbin {
namespace {

using Field = ScanResult::Field;
using testing::ElementsAre;
using testing::IsEmpty;

DiskItem item(const char* name, std::int64_t size, DiskCategory category, bool isSelected = false) {
    return {.name = name,
            .path = std::string("/home/user/Library/Caches/") + name,
            .size = size,
            .category = category,
            .isSelected = isSelected};
}

std::vector<std::string> namesFor(const ScanResult& result, DiskCategory category) {
    std::vector<std::string> names;
    for (const DiskItem& found : result.itemsFor(category)) {
        names.push_back(found.name);
    }
    return names;
}

TEST(ScanResult, begins_with_nothing_found_and_nothing_running) {
    const ScanResult result;
    EXPECT_TRUE(result.items.get().empty());
    EXPECT_FALSE(result.isScanning);
    EXPECT_FALSE(result.hasScanned);
    EXPECT_EQ(result.scanProgress, 0.0);
    EXPECT_EQ(result.currentTask.get(), "");
    EXPECT_EQ(result.bytesFoundSoFar, 0);
    EXPECT_FALSE(result.isDeleting);
    EXPECT_EQ(result.deleteProgress, 0.0);
    EXPECT_EQ(result.freedSpace, 0);
    EXPECT_FALSE(result.showDeletionComplete);
    EXPECT_FALSE(result.showConfirmation);
    EXPECT_TRUE(result.deletionLog.get().empty());
    EXPECT_EQ(result.searchText.get(), "");
}

TEST(ScanResult, totals_nothing_when_there_are_no_items) {
    const ScanResult result;
    EXPECT_EQ(result.totalSize(), 0);
    EXPECT_EQ(result.selectedSize(), 0);
    EXPECT_EQ(result.selectedCount(), 0U);
    for (const DiskCategory category : allDiskCategories) {
        EXPECT_EQ(result.categorySize(category), 0);
        EXPECT_TRUE(result.itemsFor(category).empty());
        EXPECT_FALSE(result.hasItemsFor(category));
    }
}

class FilledScanResult : public testing::Test {
  protected:
    ScanResult result;

    void SetUp() override {
        result.items = {item("Safari", 5, DiskCategory::programCaches),
                        item("Chrome", 70, DiskCategory::appData, true),
                        item("Slack", 300, DiskCategory::programCaches, true),
                        item("Notes", 1'000, DiskCategory::programCaches)};
    }

  private:
    test::ScopedLocale m_locale{{"en_US"}};
};

TEST_F(FilledScanResult, totals_all_and_the_selected_items) {
    EXPECT_EQ(result.totalSize(), 1'375);
    EXPECT_EQ(result.selectedSize(), 370);
    EXPECT_EQ(result.selectedCount(), 2U);
}

TEST_F(FilledScanResult, lists_the_items_of_a_category_in_their_order) {
    EXPECT_THAT(namesFor(result, DiskCategory::programCaches),
                ElementsAre("Safari", "Slack", "Notes"));
    EXPECT_THAT(namesFor(result, DiskCategory::appData), ElementsAre("Chrome"));
    EXPECT_THAT(namesFor(result, DiskCategory::logFiles), IsEmpty());
}

// Pointers to them once outlived the list.
TEST_F(FilledScanResult, gives_items_that_outlive_the_next_write) {
    const auto items = result.itemsFor(DiskCategory::appData);
    result.items = {};
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].name, "Chrome");
    EXPECT_EQ(items[0].size, 70);
    EXPECT_TRUE(items[0].isSelected);
}

TEST_F(FilledScanResult, has_items_for_a_category_as_the_search_text_leaves_some) {
    EXPECT_TRUE(result.hasItemsFor(DiskCategory::appData));
    EXPECT_FALSE(result.hasItemsFor(DiskCategory::logFiles));
    result.searchText = "safari";
    EXPECT_TRUE(result.hasItemsFor(DiskCategory::programCaches));
    EXPECT_FALSE(result.hasItemsFor(DiskCategory::appData));
}

TEST_F(FilledScanResult, narrows_a_category_to_names_with_the_search_text_in_any_case) {
    result.items.modify([](auto& items) { items[0].name = "npm cache"; });
    result.searchText = "NPM CACHE"; // which is not in the path
    EXPECT_THAT(namesFor(result, DiskCategory::programCaches), ElementsAre("npm cache"));
    EXPECT_THAT(namesFor(result, DiskCategory::appData), IsEmpty());
}

TEST_F(FilledScanResult, finds_the_search_text_in_paths_too) {
    result.searchText = "LIBRARY/caches";
    EXPECT_THAT(namesFor(result, DiskCategory::programCaches),
                ElementsAre("Safari", "Slack", "Notes"));
}

TEST_F(FilledScanResult, searches_no_other_field) {
    result.items.modify([](auto& items) {
        items[0].safetyNote = "rebuild";
        items[0].sfSymbol = "trash";
    });
    for (const char* text : {"rebuild", "trash", "safe", "Program Caches"}) {
        result.searchText = text;
        EXPECT_THAT(namesFor(result, DiskCategory::programCaches), IsEmpty()) << text;
    }
}

TEST_F(FilledScanResult, takes_the_search_text_as_it_is) {
    for (const char* text : {" ", "Safari ", "S*", "Safari Slack"}) {
        result.searchText = text;
        EXPECT_THAT(namesFor(result, DiskCategory::programCaches), IsEmpty()) << text;
    }
}

TEST_F(FilledScanResult, sums_a_category_over_what_the_search_text_leaves) {
    EXPECT_EQ(result.categorySize(DiskCategory::programCaches), 1'305);
    result.searchText = "s/s";
    EXPECT_EQ(result.categorySize(DiskCategory::programCaches), 305);
    EXPECT_EQ(result.categorySize(DiskCategory::appData), 0);
}

TEST_F(FilledScanResult, counts_selected_items_that_the_search_text_hides) {
    result.searchText = "Notes";
    EXPECT_EQ(result.selectedSize(), 370);
    EXPECT_EQ(result.selectedCount(), 2U);
    EXPECT_EQ(result.totalSize(), 1'375);
}

TEST_F(FilledScanResult, announces_every_write_of_a_field_right_before_it) {
    std::vector<Field> fields;
    std::vector<std::string> before;
    const auto subscription = result.objectWillChange.subscribe([&](Field field) {
        fields.push_back(field);
        before.push_back(result.currentTask);
    });
    result.currentTask = "one";
    result.isScanning = true;
    result.currentTask = "two";
    result.currentTask = "two";
    EXPECT_THAT(fields, ElementsAre(Field::currentTask, Field::isScanning, Field::currentTask,
                                    Field::currentTask));
    EXPECT_THAT(before, ElementsAre("", "one", "one", "two"));
    EXPECT_EQ(result.currentTask.get(), "two");
}

TEST_F(FilledScanResult, announces_each_field_under_its_own_name) {
    std::vector<Field> fields;
    const auto subscription =
        result.objectWillChange.subscribe([&fields](Field field) { fields.push_back(field); });
    result.items = {};
    result.isScanning = true;
    result.hasScanned = true;
    result.scanProgress = 0.5;
    result.currentTask = "task";
    result.bytesFoundSoFar = 1;
    result.isDeleting = true;
    result.deleteProgress = 0.5;
    result.freedSpace = 1;
    result.showDeletionComplete = true;
    result.showConfirmation = true;
    result.deletionLog = {"line"};
    result.searchText = "text";
    EXPECT_THAT(fields,
                ElementsAre(Field::items, Field::isScanning, Field::hasScanned, Field::scanProgress,
                            Field::currentTask, Field::bytesFoundSoFar, Field::isDeleting,
                            Field::deleteProgress, Field::freedSpace, Field::showDeletionComplete,
                            Field::showConfirmation, Field::deletionLog, Field::searchText));
}

} // namespace
} // namespace drossbin
