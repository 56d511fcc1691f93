#include "Harness.h"

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
    const QSignalSpy shown(&view, &ContentView::shownChanged);
    const QSignalSpy rows(view.items(), &QAbstractItemModel::dataChanged);
    view.smartSelect();
    EXPECT_EQ(shown.count(), 0);
    test::turn();
    EXPECT_EQ(shown.count(), 1);
    EXPECT_EQ(rows.count(), 1);
    EXPECT_EQ(view.shown().selectionSummary, "1,000 items · 1 MB");
}

TEST_F(Refresh, comes_again_in_the_next_turn) {
    view.scanResult().items = {item("a", 1), item("b", 2)};
    test::turn();
    const QSignalSpy shown(&view, &ContentView::shownChanged);
    view.smartSelect();
    test::turn();
    view.clearSelection();
    test::turn();
    EXPECT_EQ(shown.count(), 2);
    EXPECT_EQ(view.shown().selectionSummary, "0 items · Zero KB");
}

TEST_F(Refresh, comes_with_what_the_screens_write_and_are_chosen_by) {
    const auto isToldOf = [this](const auto& change) {
        const QSignalSpy shown(&view, &ContentView::shownChanged);
        change();
        test::turn();
        return shown.count() == 1;
    };
    EXPECT_TRUE(isToldOf([this] { view.setSearchText("é"); }));
    EXPECT_EQ(view.searchText(), "é");
    EXPECT_TRUE(isToldOf([this] { view.setSelectedCategory(2); }));
    EXPECT_TRUE(isToldOf([this] { view.requestDeletion(); }));
    EXPECT_TRUE(view.shown().showConfirmation);
    EXPECT_TRUE(isToldOf([this] { view.scanResult().hasScanned = true; }));
    EXPECT_EQ(view.screen(), ContentView::Empty);
}

TEST_F(Refresh, smart_select_without_safe_items_selects_nothing) {
    view.scanResult().items = {item("a", 1, DiskCategory::appData, RiskLevel::caution)};
    view.smartSelect();
    test::turn();
    EXPECT_FALSE(view.shown().hasSelection);
}

TEST_F(Refresh, smart_select_adds_to_what_was_selected_by_hand) {
    view.setSelectedCategory(static_cast<int>(DiskCategory::appData));
    view.scanResult().items = {item("a", 4'000, DiskCategory::appData, RiskLevel::caution),
                               item("b", 3'000)};
    test::turn();
    view.items()->toggle(0);
    test::turn();
    EXPECT_EQ(view.shown().deleteLabel, "Delete 4 KB");
    view.smartSelect();
    test::turn();
    EXPECT_EQ(view.shown().deleteLabel, "Delete 7 KB");
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
    EXPECT_EQ(viewOnDisk(1'000'000'000'000, view)->shown().foundShare, 0.25);
}

TEST(Meter, is_a_share_of_half_a_terabyte_when_the_disk_cannot_be_asked) {
    std::unique_ptr<ContentView> view;
    EXPECT_EQ(viewOnDisk(std::nullopt, view)->shown().foundShare, 0.5);
}

TEST(Meter, is_empty_on_a_disk_without_any_space) {
    std::unique_ptr<ContentView> view;
    EXPECT_EQ(viewOnDisk(0, view)->shown().foundShare, 0);
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
