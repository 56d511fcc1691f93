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
using enum DiskCategory;

struct SelectedItems : ::testing::Test {
    SelectedItems() { view.requestDeletion(); }

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
    ItemListModel& model = *view.selectedItems();
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(SelectedItems, are_those_of_every_category_in_list_order) {
    show({selected(item("a", 1, logFiles)), item("b", 9), selected(item("c", 5, appData))});
    EXPECT_THAT(names(), ElementsAre("a", "c"));
}

TEST_F(SelectedItems, are_shown_whatever_the_search_text_hides) {
    view.setSearchText("nothing");
    show({selected(item("a", 1))});
    EXPECT_THAT(names(), ElementsAre("a"));
}

TEST_F(SelectedItems, are_none_when_nothing_is_selected) {
    show({item("a", 1)});
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(SelectedItems, tell_name_size_and_risk) {
    show({selected(item("a\tb", 4'000'000, appData, RiskLevel::caution)),
          selected(item("b", 1, appData, RiskLevel::safe)),
          selected(item("c", 0, appData, RiskLevel::critical))});
    EXPECT_EQ(at(0, "name"), "a\\tb");
    EXPECT_EQ(at(0, "sizeText"), "4 MB");
    EXPECT_EQ(at(0, "riskColor"), "orange");
    EXPECT_EQ(at(0, "riskLabel"), "Review First");
    EXPECT_EQ(at(0, "riskSymbol"), "exclamationmark.triangle.fill");
    EXPECT_EQ(at(1, "riskSymbol"), "checkmark.circle.fill");
    EXPECT_EQ(at(2, "riskSymbol"), "xmark.octagon.fill");
    EXPECT_EQ(at(2, "sizeText"), "Zero KB");
}

TEST_F(SelectedItems, of_one_name_are_told_apart_by_their_paths) {
    DiskItem one = selected(item("a", 1));
    DiskItem other = one;
    one.path = "/home/ada/one/a";
    other.path = "/home/ada/ot\nher/a";
    show({one, other});
    EXPECT_EQ(at(0, "path"), "/home/ada/one/a");
    EXPECT_EQ(at(1, "path"), "/home/ada/ot\\nher/a");
}

TEST_F(SelectedItems, follow_the_selection) {
    show({selected(item("a", 2)), item("b", 1)});
    view.smartSelect();
    test::turn();
    EXPECT_THAT(names(), ElementsAre("a", "b"));
    view.clearSelection();
    test::turn();
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(SelectedItems, keep_their_rows_when_nothing_that_they_show_changes) {
    show({selected(item("a", 2)), item("b", 1)});
    const QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    view.setSearchText("b");
    test::turn();
    EXPECT_EQ(reset.count(), 0);
}

TEST_F(SelectedItems, are_shown_from_the_top_when_they_change) {
    show({selected(item("a", 2)), item("b", 1)});
    const QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    const QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    view.smartSelect();
    test::turn();
    EXPECT_EQ(reset.count(), 1);
    EXPECT_EQ(inserted.count(), 0);
}

TEST_F(SelectedItems, are_read_when_the_confirmation_comes_and_stay_while_it_leaves) {
    view.cancelDeletion();
    show({selected(item("a", 2)), selected(item("b", 1))});
    EXPECT_EQ(model.rowCount(), 0);
    view.requestDeletion();
    test::turn();
    EXPECT_THAT(names(), ElementsAre("a", "b"));
    view.cancelDeletion();
    view.clearSelection();
    test::turn();
    EXPECT_THAT(names(), ElementsAre("a", "b"));
    view.requestDeletion();
    test::turn();
    EXPECT_EQ(model.rowCount(), 0);
}

} // namespace
} // namespace drossbin
