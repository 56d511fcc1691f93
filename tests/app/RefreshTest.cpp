#include "Session.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace drossbin {
namespace {

using test::item;
using test::servicesThatFind;

struct Refresh : ::testing::Test {
    ContentView view{servicesThatFind({})};
};

TEST_F(Refresh, comes_once_a_turn_however_many_writes_there_were) {
    view.setSelectedCategory(static_cast<int>(DiskCategory::programCaches));
    view.scanResult().items = std::vector<DiskItem>(1'000, item("a", 1'000));
    test::turn();
    const QSignalSpy summary(&view, &ContentView::selectionSummaryChanged);
    const QSignalSpy selection(&view, &ContentView::hasSelectionChanged);
    const QSignalSpy rows(view.items(), &QAbstractItemModel::dataChanged);
    view.smartSelect();
    EXPECT_EQ(summary.count(), 0);
    test::turn();
    EXPECT_EQ(summary.count(), 1);
    EXPECT_EQ(selection.count(), 1);
    EXPECT_EQ(rows.count(), 1);
    EXPECT_EQ(view.selectionSummary(), "1,000 items · 1 MB");
}

TEST_F(Refresh, comes_again_in_the_next_turn) {
    view.scanResult().items = {item("a", 1), item("b", 2)};
    test::turn();
    const QSignalSpy summary(&view, &ContentView::selectionSummaryChanged);
    view.smartSelect();
    test::turn();
    view.clearSelection();
    test::turn();
    EXPECT_EQ(summary.count(), 2);
    EXPECT_EQ(view.selectionSummary(), "0 items · Zero KB");
}

TEST_F(Refresh, announces_only_what_is_different) {
    view.scanResult().items = {item("a", 1)};
    test::turn();
    const QSignalSpy total(&view, &ContentView::totalSummaryChanged);
    const QSignalSpy label(&view, &ContentView::deleteLabelChanged);
    const QSignalSpy screen(&view, &ContentView::screenChanged);
    view.smartSelect();
    test::turn();
    EXPECT_EQ(total.count(), 0);
    EXPECT_EQ(label.count(), 1);
    EXPECT_EQ(screen.count(), 0);
}

TEST_F(Refresh, announces_nothing_when_the_same_value_is_written_again) {
    view.setSearchText("a");
    view.setSelectedCategory(2);
    test::turn();
    const QSignalSpy search(&view, &ContentView::searchTextChanged);
    const QSignalSpy category(&view, &ContentView::selectedCategoryChanged);
    view.setSearchText("a");
    view.setSelectedCategory(2);
    test::turn();
    EXPECT_EQ(search.count(), 0);
    EXPECT_EQ(category.count(), 0);
}

TEST_F(Refresh, announces_what_the_screens_write_and_are_chosen_by) {
    const QSignalSpy search(&view, &ContentView::searchTextChanged);
    const QSignalSpy category(&view, &ContentView::selectedCategoryChanged);
    const QSignalSpy confirmation(&view, &ContentView::showConfirmationChanged);
    const QSignalSpy screen(&view, &ContentView::screenChanged);
    view.setSearchText("é");
    view.setSelectedCategory(2);
    view.requestDeletion();
    view.scanResult().hasScanned = true;
    EXPECT_EQ(view.searchText(), "é");
    EXPECT_TRUE(view.showConfirmation());
    test::turn();
    EXPECT_EQ(search.count(), 1);
    EXPECT_EQ(category.count(), 1);
    EXPECT_EQ(confirmation.count(), 1);
    EXPECT_EQ(screen.count(), 1);
}

TEST_F(Refresh, shows_all_values_before_it_announces_the_first) {
    QString deleteLabel;
    QObject::connect(&view, &ContentView::hasSelectionChanged,
                     [&] { deleteLabel = view.deleteLabel(); });
    view.scanResult().items = {test::selected(item("a", 4'000'000))};
    test::turn();
    EXPECT_EQ(deleteLabel, "Delete 4 MB");
}

TEST_F(Refresh, smart_select_without_safe_items_selects_nothing) {
    view.scanResult().items = {item("a", 1, DiskCategory::appData, RiskLevel::caution)};
    view.smartSelect();
    test::turn();
    EXPECT_FALSE(view.hasSelection());
}

TEST_F(Refresh, smart_select_adds_to_what_was_selected_by_hand) {
    view.setSelectedCategory(static_cast<int>(DiskCategory::appData));
    view.scanResult().items = {item("a", 4'000, DiskCategory::appData, RiskLevel::caution),
                               item("b", 3'000)};
    test::turn();
    view.items()->toggle(0);
    test::turn();
    EXPECT_EQ(view.deleteLabel(), "Delete 4 KB");
    view.smartSelect();
    test::turn();
    EXPECT_EQ(view.deleteLabel(), "Delete 7 KB");
}

TEST_F(Refresh, selects_in_the_category_shown_only_and_in_none_without_one) {
    view.scanResult().items = {item("a", 1, DiskCategory::appData, RiskLevel::caution),
                               item("b", 2, DiskCategory::logFiles)};
    view.selectAllInCategory();
    EXPECT_EQ(view.scanResult().selectedCount(), 0);
    view.setSelectedCategory(static_cast<int>(DiskCategory::appData));
    view.selectAllInCategory();
    EXPECT_EQ(view.scanResult().selectedSize(), 1);
    view.smartSelect();
    view.deselectAllInCategory();
    EXPECT_EQ(view.scanResult().selectedSize(), 2);
    view.setSelectedCategory(-1);
    view.deselectAllInCategory();
    EXPECT_EQ(view.scanResult().selectedSize(), 2);
}

ContentView* viewOnDisk(std::optional<std::int64_t> space, std::unique_ptr<ContentView>& owner) {
    Services services = servicesThatFind({item("a", 250'000'000'000)});
    services.diskSpace = [space] { return space; };
    owner = std::make_unique<ContentView>(services);
    test::scan(*owner);
    return owner.get();
}

TEST(Meter, is_a_share_of_the_disk_that_a_scan_has_asked) {
    std::unique_ptr<ContentView> view;
    EXPECT_EQ(viewOnDisk(1'000'000'000'000, view)->foundShare(), 0.25);
}

TEST(Meter, is_a_share_of_half_a_terabyte_when_the_disk_cannot_be_asked) {
    std::unique_ptr<ContentView> view;
    EXPECT_EQ(viewOnDisk(std::nullopt, view)->foundShare(), 0.5);
}

TEST(Meter, is_empty_on_a_disk_without_any_space) {
    std::unique_ptr<ContentView> view;
    EXPECT_EQ(viewOnDisk(0, view)->foundShare(), 0);
}

TEST(Meter, asks_the_disk_off_the_main_thread) {
    bool wasOnMainThread = true;
    Services services = servicesThatFind({});
    services.diskSpace = [&wasOnMainThread] {
        wasOnMainThread = MainThread::isCurrent();
        return std::optional<std::int64_t>(1);
    };
    ContentView view(services);
    test::scan(view);
    EXPECT_FALSE(wasOnMainThread);
}

} // namespace
} // namespace drossbin
