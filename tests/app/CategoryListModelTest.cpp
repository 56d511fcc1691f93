#include "Harness.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace drossbin {
namespace {

using test::item;
using test::servicesThatFind;
using ::testing::ElementsAre;
using enum DiskCategory;

/// The changes that `spy` saw, as "row:role,role".
std::vector<std::string> changes(const QSignalSpy& spy, const QAbstractItemModel& model) {
    std::vector<std::string> texts;
    for (const QList<QVariant>& change : spy) {
        std::string roles;
        for (const int role : change[2].value<QList<int>>()) {
            roles += (roles.empty() ? "" : ",") + model.roleNames()[role].toStdString();
        }
        texts.push_back(std::to_string(change[0].toModelIndex().row()) + ":" + roles);
    }
    return texts;
}

struct CategoryList : ::testing::Test {
    void show(std::vector<DiskItem> items) {
        view.scanResult().items = std::move(items);
        test::turn();
    }

    [[nodiscard]] std::vector<std::string> all(const char* role) const {
        std::vector<std::string> texts;
        for (int row = 0; row < model.rowCount(); ++row) {
            texts.push_back(
                model.data(model.index(row), model.roleNames().key(role)).toString().toStdString());
        }
        return texts;
    }

    ContentView view{servicesThatFind({})};
    CategoryListModel& model = *view.categories();
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
    QSignalSpy changed{&model, &QAbstractItemModel::dataChanged};
};

TEST_F(CategoryList, always_has_the_five_categories_in_their_order) {
    EXPECT_THAT(all("name"), ElementsAre("Program Caches", "Package Caches", "App Data",
                                         "Log Files", "Old Downloads"));
    EXPECT_THAT(all("icon"), ElementsAre("trash", "shippingbox", "square.stack.3d.up", "doc.text",
                                         "arrow.down.circle"));
    EXPECT_THAT(all("subtitle"),
                ElementsAre("App and system caches", "npm, Homebrew, pip, yarn",
                            "Application support data", "System and application logs",
                            "Downloads older than 30 days"));
}

TEST_F(CategoryList, counts_and_sums_each_category_also_an_empty_one) {
    show({item("a", 3'000'000, logFiles), item("b", 1'000'000, logFiles), item("c", 1, appData)});
    EXPECT_THAT(all("countText"), ElementsAre("0", "0", "1", "2", "0"));
    EXPECT_THAT(all("sizeText"), ElementsAre("Zero KB", "Zero KB", "1 byte", "4 MB", "Zero KB"));
    EXPECT_THAT(all("caption"),
                ElementsAre("0 items · Zero KB", "0 items · Zero KB", "1 items · 1 byte",
                            "2 items · 4 MB", "0 items · Zero KB"));
}

TEST_F(CategoryList, follows_the_search_text) {
    show({item("a", 3, logFiles), item("b", 5, logFiles), item("b", 1, appData)});
    view.setSearchText("b");
    test::turn();
    EXPECT_THAT(all("caption"),
                ElementsAre("0 items · Zero KB", "0 items · Zero KB", "1 items · 1 byte",
                            "1 items · 5 bytes", "0 items · Zero KB"));
    view.setSearchText("nothing");
    test::turn();
    EXPECT_THAT(all("countText"), ElementsAre("0", "0", "0", "0", "0"));
}

TEST_F(CategoryList, marks_the_category_chosen_and_no_other) {
    EXPECT_THAT(all("isCurrent"), ElementsAre("false", "false", "false", "false", "false"));
    view.setSelectedCategory(1);
    test::turn();
    EXPECT_THAT(all("isCurrent"), ElementsAre("false", "true", "false", "false", "false"));
    view.setSelectedCategory(-1);
    test::turn();
    EXPECT_THAT(all("isCurrent"), ElementsAre("false", "false", "false", "false", "false"));
}

TEST_F(CategoryList, announces_the_rows_and_roles_that_changed) {
    show({item("a", 3, logFiles), item("empty", 0, appData)});
    changed.clear();
    view.setSelectedCategory(3);
    test::turn();
    EXPECT_THAT(changes(changed, model), ElementsAre("3:isCurrent"));
    changed.clear();
    view.setSelectedCategory(0);
    test::turn();
    EXPECT_THAT(changes(changed, model), ElementsAre("0:isCurrent", "3:isCurrent"));
    changed.clear();
    view.setSearchText("nothing");
    test::turn();
    EXPECT_THAT(changes(changed, model),
                ElementsAre("2:countText,sizeText,caption", "3:countText,sizeText,caption"));
}

TEST_F(CategoryList, announces_nothing_when_only_the_selection_changes) {
    show({item("a", 3, logFiles)});
    changed.clear();
    view.smartSelect();
    test::turn();
    EXPECT_EQ(changed.count(), 0);
}

} // namespace
} // namespace drossbin
