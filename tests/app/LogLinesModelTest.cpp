#include "app/LogLinesModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace drossbin {
namespace {

struct LogLines : ::testing::Test {
    [[nodiscard]] QString text(int row) const {
        return model.data(model.index(row), LogLinesModel::TextRole).toString();
    }
    [[nodiscard]] bool isSuccess(int row) const {
        return model.data(model.index(row), LogLinesModel::IsSuccessRole).toBool();
    }

    LogLinesModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(LogLines, are_none_before_a_deletion_and_after_an_empty_one) {
    EXPECT_EQ(model.rowCount(), 0);
    model.refresh({});
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(LogLines, keep_their_order_and_words) {
    model.refresh({"✅ Deleted: a (4 MB)", "❌ Failed: b — Permission denied"});
    EXPECT_EQ(model.rowCount(), 2);
    EXPECT_EQ(text(0), "✅ Deleted: a (4 MB)");
    EXPECT_EQ(text(1), "❌ Failed: b — Permission denied");
}

TEST_F(LogLines, are_a_success_only_when_they_start_with_the_check_mark) {
    model.refresh({"✅ Deleted: a (4 MB)", "❌ Failed: ✅ — no", " ✅", ""});
    EXPECT_TRUE(isSuccess(0));
    EXPECT_FALSE(isSuccess(1));
    EXPECT_FALSE(isSuccess(2));
    EXPECT_FALSE(isSuccess(3));
}

TEST_F(LogLines, tell_which_is_the_first_failure_and_what_it_says) {
    model.refresh({"✅ Deleted: a (4 MB)", "❌ Failed: b — no", "❌ Failed: c — no"});
    EXPECT_EQ(model.firstFailure(), 1);
    EXPECT_EQ(model.failure(), "❌ Failed: b — no");
}

TEST_F(LogLines, without_a_failure_tell_of_none) {
    model.refresh({"❌ Failed: b — no"});
    model.refresh({"✅ Deleted: a (4 MB)"});
    EXPECT_EQ(model.firstFailure(), -1);
    EXPECT_EQ(model.failure(), "");
    model.refresh({});
    EXPECT_EQ(model.firstFailure(), -1);
}

TEST_F(LogLines, may_be_the_same_twice) {
    model.refresh({"❌ Failed: a — no", "❌ Failed: a — no"});
    EXPECT_EQ(model.rowCount(), 2);
    EXPECT_EQ(text(0), text(1));
}

TEST_F(LogLines, reset_the_list_only_when_they_change) {
    model.refresh({"a"});
    const QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    model.refresh({"a"});
    EXPECT_EQ(reset.count(), 0);
    model.refresh({"b"});
    EXPECT_EQ(reset.count(), 1);
}

TEST_F(LogLines, have_the_roles_that_the_list_binds_to) {
    EXPECT_EQ(model.roleNames().value(LogLinesModel::TextRole), "text");
    EXPECT_EQ(model.roleNames().value(LogLinesModel::IsSuccessRole), "isSuccess");
}

} // namespace
} // namespace drossbin
