#include "model/ScanResult.h"

#include "support/ScopedLocale.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <limits>
#include <thread>

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
    for (const DiskItem* found : result.itemsFor(category)) {
        names.push_back(found->name);
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
        EXPECT_THAT(result.itemsFor(category), IsEmpty());
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

class ScanResultDeathTest : public testing::Test {
  protected:
    ScanResultDeathTest() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }

    static constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    static constexpr const char* overflow = "^drossbin: a sum of sizes exceeds 64 bits\n$";
    static constexpr const char* wrongThread =
        "^drossbin: the session state was touched off the main thread\n$";

    template <class Use>
    static void useOnAnotherThread(Use use) {
        MainThread::connect([](const MainThread::Job&) {});
        std::thread(use).join();
    }

    ScanResult result;
};

TEST_F(ScanResultDeathTest, stops_the_program_when_a_sum_overflows) {
    result.items = {item("a", most, DiskCategory::appData, true),
                    item("b", 1, DiskCategory::appData, true)};
    const testing::KilledBySignal aborted(SIGABRT);
    EXPECT_EXIT(std::ignore = result.totalSize(), aborted, overflow);
    EXPECT_EXIT(std::ignore = result.selectedSize(), aborted, overflow);
    EXPECT_EXIT(std::ignore = result.categorySize(DiskCategory::appData), aborted, overflow);
}

TEST_F(ScanResultDeathTest, does_not_stop_for_the_largest_sum_that_fits) {
    result.items = {item("a", most - 1, DiskCategory::appData, true),
                    item("b", 1, DiskCategory::appData, true)};
    EXPECT_EQ(result.totalSize(), most);
    EXPECT_EQ(result.selectedSize(), most);
    EXPECT_EQ(result.categorySize(DiskCategory::appData), most);
}

TEST_F(ScanResultDeathTest, stops_the_program_when_touched_off_the_main_thread) {
    const testing::KilledBySignal aborted(SIGABRT);
    EXPECT_EXIT(useOnAnotherThread([this] { result.isScanning = true; }), aborted, wrongThread);
    EXPECT_EXIT(useOnAnotherThread([this] { std::ignore = result.isScanning.get(); }), aborted,
                wrongThread);
    EXPECT_EXIT(useOnAnotherThread([this] { std::ignore = result.totalSize(); }), aborted,
                wrongThread);
    EXPECT_EXIT(useOnAnotherThread([this] { result.deselectAll(); }), aborted, wrongThread);
    EXPECT_EXIT(useOnAnotherThread([this] { result.items.modify([](auto&) {}); }), aborted,
                wrongThread);
}

TEST_F(ScanResultDeathTest, moves_with_the_main_thread) {
    std::thread([this] {
        MainThread::connect([](const MainThread::Job&) {});
        result.isScanning = true;
    }).join();
    MainThread::connect([](const MainThread::Job&) {});
    EXPECT_TRUE(result.isScanning);
}

} // namespace
} // namespace drossbin
