#include "Harness.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace drossbin {
namespace {

using test::item;
using test::selected;
using test::servicesThatFind;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using enum DiskCategory;

/// The rows that `spy` saw change, as "first-last:roles".
std::vector<std::string> changes(const QSignalSpy& spy, const QAbstractItemModel& model) {
    std::vector<std::string> texts;
    for (const QList<QVariant>& change : spy) {
        std::string text = std::to_string(change[0].toModelIndex().row()) + "-" +
                           std::to_string(change[1].toModelIndex().row()) + ":";
        for (const int role : change[2].value<QList<int>>()) {
            text += model.roleNames()[role].toStdString();
        }
        texts.push_back(text);
    }
    return texts;
}

struct ItemList : ::testing::Test {
    ItemList() { view.setSelectedCategory(static_cast<int>(programCaches)); }

    void show(std::vector<DiskItem> items) {
        view.scanResult().items = std::move(items);
        test::turn();
    }

    [[nodiscard]] QVariant at(int row, const char* role) const {
        return model.data(model.index(row), model.roleNames().key(role));
    }

    [[nodiscard]] std::vector<std::string> names() const {
        std::vector<std::string> texts;
        for (int row = 0; row < model.rowCount(); ++row) {
            texts.push_back(at(row, "name").toString().toStdString());
        }
        return texts;
    }

    ContentView view{servicesThatFind({})};
    ItemListModel& model = *view.items();
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
    QSignalSpy changed{&model, &QAbstractItemModel::dataChanged};
    QSignalSpy reset{&model, &QAbstractItemModel::modelReset};
};

TEST_F(ItemList, has_no_rows_before_a_scan_and_without_a_category) {
    EXPECT_EQ(model.rowCount(), 0);
    view.setSelectedCategory(-1);
    show({item("a", 1)});
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(ItemList, shows_the_category_largest_first_equal_sizes_in_list_order) {
    show({item("a", 5), item("other", 99, logFiles), item("b", 9), item("c", 5)});
    EXPECT_THAT(names(), ElementsAre("b", "a", "c"));
}

TEST_F(ItemList, tells_all_about_an_item) {
    DiskItem note = item("Slack", 3'200'000'000, programCaches, RiskLevel::caution);
    note.safetyNote = "Sign in again.";
    note.lastAccessed = now() - std::chrono::hours(3);
    show({note});
    EXPECT_EQ(at(0, "name"), "Slack");
    EXPECT_EQ(at(0, "path"), "/home/ada/Slack");
    EXPECT_EQ(at(0, "symbol"), "trash");
    EXPECT_EQ(at(0, "hasNote"), true);
    EXPECT_EQ(at(0, "note"), "Sign in again.");
    EXPECT_EQ(at(0, "riskColor"), "orange");
    EXPECT_EQ(at(0, "riskLabel"), "Review First");
    EXPECT_EQ(at(0, "riskSymbol"), "exclamationmark.triangle.fill");
    EXPECT_EQ(at(0, "dateText"), "3 hr. ago");
    EXPECT_EQ(at(0, "sizeText"), "3.2 GB");
    EXPECT_EQ(at(0, "isSelected"), false);
    EXPECT_EQ(at(0, "isProtected"), false);
}

TEST_F(ItemList, has_a_note_when_it_is_empty_but_present_and_none_when_absent) {
    DiskItem emptyNote = item("a", 2);
    emptyNote.safetyNote = "";
    show({emptyNote, item("b", 1)});
    EXPECT_EQ(at(0, "hasNote"), true);
    EXPECT_EQ(at(0, "note"), "");
    EXPECT_EQ(at(1, "hasNote"), false);
}

TEST_F(ItemList, shows_a_dash_for_an_unknown_date) {
    show({item("a", 2)});
    EXPECT_EQ(at(0, "dateText"), "—");
}

TEST_F(ItemList, protects_critical_items_only) {
    show({item("a", 3, programCaches, RiskLevel::critical),
          item("b", 2, programCaches, RiskLevel::caution), item("c", 1)});
    EXPECT_EQ(at(0, "isProtected"), true);
    EXPECT_EQ(at(1, "isProtected"), false);
    EXPECT_EQ(at(2, "isProtected"), false);
}

TEST_F(ItemList, shows_names_from_the_file_system_as_one_harmless_line) {
    show({item("a\nb\x1B\xFF<b>&", 1)});
    EXPECT_EQ(at(0, "name"), "a\\nb\\x1B\uFFFD<b>&");
    EXPECT_EQ(at(0, "path"), "/home/ada/a\\nb\\x1B\uFFFD<b>&");
}

TEST_F(ItemList, toggles_the_item_of_the_row) {
    show({item("a", 1), item("b", 9)});
    model.toggle(0);
    EXPECT_EQ(view.scanResult().items.get()[1].isSelected, true);
    EXPECT_EQ(view.scanResult().items.get()[0].isSelected, false);
    model.toggle(0);
    EXPECT_EQ(view.scanResult().selectedCount(), 0);
}

TEST_F(ItemList, never_toggles_a_protected_item_or_a_row_that_is_not_there) {
    show({item("a", 1, programCaches, RiskLevel::critical)});
    model.toggle(0);
    model.toggle(-1);
    model.toggle(1);
    EXPECT_EQ(view.scanResult().selectedCount(), 0);
}

TEST_F(ItemList, announces_only_the_row_that_was_toggled) {
    show({item("a", 3), item("b", 2), item("c", 1)});
    changed.clear();
    reset.clear();
    model.toggle(1);
    test::turn();
    EXPECT_THAT(changes(changed, model), ElementsAre("1-1:isSelected"));
    EXPECT_EQ(reset.count(), 0);
    EXPECT_EQ(at(1, "isSelected"), true);
}

TEST_F(ItemList, announces_rows_that_were_selected_together_as_ranges) {
    show({item("a", 9), item("b", 8), selected(item("c", 7)), item("d", 6),
          item("e", 5, programCaches, RiskLevel::critical), item("f", 4)});
    changed.clear();
    view.selectAllInCategory();
    test::turn();
    EXPECT_THAT(changes(changed, model),
                ElementsAre("0-1:isSelected", "3-3:isSelected", "5-5:isSelected"));
}

TEST_F(ItemList, announces_nothing_when_the_selection_comes_back_within_a_turn) {
    show({item("a", 9), item("b", 8)});
    changed.clear();
    reset.clear();
    model.toggle(0);
    model.toggle(0);
    test::turn();
    EXPECT_THAT(changes(changed, model), IsEmpty());
    EXPECT_EQ(reset.count(), 0);
}

TEST_F(ItemList, announces_nothing_when_another_category_is_selected) {
    show({item("a", 9), item("b", 8, logFiles)});
    changed.clear();
    reset.clear();
    view.scanResult().selectAllIn(logFiles);
    test::turn();
    EXPECT_EQ(changed.count(), 0);
    EXPECT_EQ(reset.count(), 0);
}

TEST_F(ItemList, follows_the_search_text_in_name_and_path) {
    DiskItem elsewhere = item("b", 8);
    elsewhere.path = "/Library/Caches/b";
    show({item("Alpha", 9), elsewhere});
    view.setSearchText("ALPHA");
    test::turn();
    EXPECT_THAT(names(), ElementsAre("Alpha"));
    view.setSearchText("Library/Caches");
    test::turn();
    EXPECT_THAT(names(), ElementsAre("b"));
    view.setSearchText("");
    test::turn();
    EXPECT_THAT(names(), ElementsAre("Alpha", "b"));
}

TEST_F(ItemList, keeps_its_rows_when_the_search_text_changes_none_of_them) {
    show({item("Alpha", 9), item("Beta", 8)});
    changed.clear();
    view.setSearchText("ada");
    test::turn();
    EXPECT_EQ(changed.count(), 0);
    view.setSearchText("beta");
    test::turn();
    EXPECT_THAT(changes(changed, model), ElementsAre("0-0:"));
}

TEST_F(ItemList, gives_its_rows_other_items_and_drops_or_adds_the_rest) {
    show({item("a", 9), item("b", 8), item("c", 7), item("d", 6, logFiles)});
    const QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    const QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    changed.clear();
    view.setSelectedCategory(static_cast<int>(logFiles));
    test::turn();
    EXPECT_THAT(names(), ElementsAre("d"));
    EXPECT_EQ(removed.count(), 1);
    EXPECT_EQ(removed.value(0).mid(1), QList<QVariant>({1, 2}));
    view.setSelectedCategory(static_cast<int>(programCaches));
    test::turn();
    EXPECT_THAT(names(), ElementsAre("a", "b", "c"));
    EXPECT_EQ(inserted.count(), 1);
    EXPECT_EQ(inserted.value(0).mid(1), QList<QVariant>({1, 2}));
    EXPECT_THAT(changes(changed, model), ElementsAre("0-0:", "0-0:"));
    EXPECT_EQ(reset.count(), 0);
}

TEST_F(ItemList, neither_drops_nor_adds_rows_where_there_are_as_many_other_items) {
    show({item("a", 9), item("b", 8, logFiles)});
    const QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    const QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    changed.clear();
    view.setSelectedCategory(static_cast<int>(logFiles));
    test::turn();
    EXPECT_THAT(names(), ElementsAre("b"));
    EXPECT_THAT(changes(changed, model), ElementsAre("0-0:"));
    EXPECT_EQ(removed.count() + inserted.count(), 0);
}

TEST_F(ItemList, toggles_the_right_item_of_a_filtered_list) {
    show({item("Alpha", 9), item("Beta", 8)});
    view.setSearchText("beta");
    test::turn();
    model.toggle(0);
    EXPECT_EQ(view.scanResult().items.get()[0].isSelected, false);
    EXPECT_EQ(view.scanResult().items.get()[1].isSelected, true);
}

TEST_F(ItemList, shows_another_category_when_one_is_chosen) {
    show({item("a", 9), item("b", 8, logFiles)});
    view.setSelectedCategory(static_cast<int>(logFiles));
    test::turn();
    EXPECT_THAT(names(), ElementsAre("b"));
}

TEST_F(ItemList, shows_its_rows_until_the_refresh_and_toggles_none_of_a_list_that_is_gone) {
    show({item("a", 9), item("b", 8)});
    view.scanResult().items = {item("c", 7)};
    EXPECT_THAT(names(), ElementsAre("a", "b"));
    model.toggle(0);
    model.toggle(1);
    EXPECT_EQ(view.scanResult().selectedCount(), 0);
    test::turn();
    EXPECT_THAT(names(), ElementsAre("c"));
}

TEST_F(ItemList, toggles_the_item_that_the_row_shows_wherever_it_lies_in_the_list) {
    show({item("a", 9), item("b", 8)});
    view.scanResult().items.modify([](auto& items) { std::swap(items[0], items[1]); });
    model.toggle(0);
    EXPECT_EQ(view.scanResult().items.get()[1].name, "a");
    EXPECT_TRUE(view.scanResult().items.get()[1].isSelected);
    EXPECT_FALSE(view.scanResult().items.get()[0].isSelected);
}

TEST_F(ItemList, shows_another_list_of_the_same_names_anew) {
    show({item("a", 9), item("b", 8)});
    changed.clear();
    show({item("a", 9), item("b", 8)});
    EXPECT_THAT(changes(changed, model), ElementsAre("0-1:"));
}

} // namespace
} // namespace drossbin
