#include "Harness.h"

#include <QSemaphore>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace drossbin {
namespace {

using test::item;
using test::selected;
using test::servicesThatFind;
using test::turnUntil;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A view whose cleaner notes what it is given, reports as the real one does, and waits for the
/// gate where it is closed.
struct Deletion : ::testing::Test {
    Deletion()
        : view(services()) {
        view.scanResult().hasScanned = true;
        view.scanResult().items = {selected(item("a", 30)), item("b", 20),
                                   selected(item("c", 10, DiskCategory::logFiles))};
    }

    Services services() {
        Services services = servicesThatFind({});
        services.deleteItems = [this](const std::vector<DiskItem>& items,
                                      const DiskCleaner::Progress& progress) {
            for (const DiskItem& item : items) {
                deleted.push_back(item.path);
            }
            MainThread::post([progress] { progress(0.5, "Deleting a..."); });
            gate.acquire();
            MainThread::post([progress] { progress(1.0, ""); });
            ++runs;
            return DiskCleaner::Outcome{40, {"✅ Deleted: a (30 bytes)", "❌ Failed: c — no"}};
        };
        services.scan = [this](const DiskScanner::Progress&) {
            ++scans;
            return std::vector{item("left", 1)};
        };
        return services;
    }

    void askAndConfirm() {
        view.requestDeletion();
        view.confirmDeletion();
    }

    void waitForTheEnd() {
        gate.release();
        test::settle();
        EXPECT_FALSE(view.shown().isDeleting);
    }

    QSemaphore gate;
    std::vector<std::string> deleted;
    std::atomic<int> runs = 0;
    std::atomic<int> scans = 0;
    ContentView view;
};

TEST_F(Deletion, writes_the_fields_in_the_promised_order) {
    view.requestDeletion();
    test::Recorder recorder(view.scanResult());
    view.confirmDeletion();
    EXPECT_THAT(recorder.take(),
                ElementsAre("showConfirmation=false", "isDeleting=true", "deleteProgress=0"));
    waitForTheEnd();
    EXPECT_THAT(recorder.take(),
                ElementsAre("deleteProgress=0.5", "deleteProgress=1", "isDeleting=false",
                            "freedSpace=40",
                            "deletionLog=[✅ Deleted: a (30 bytes),❌ Failed: c — no]",
                            "showDeletionComplete=true"));
}

TEST_F(Deletion, removes_what_is_selected_in_list_order_whatever_the_search_text_hides) {
    view.setSearchText("nothing");
    askAndConfirm();
    waitForTheEnd();
    EXPECT_THAT(deleted, ElementsAre("/home/ada/a", "/home/ada/c"));
}

TEST_F(Deletion, can_be_of_nothing_at_all) {
    view.clearSelection();
    askAndConfirm();
    waitForTheEnd();
    EXPECT_THAT(deleted, IsEmpty());
    EXPECT_TRUE(view.shown().showDeletionComplete);
}

TEST_F(Deletion, leaves_the_items_in_the_list_and_selected_until_dismissed) {
    askAndConfirm();
    waitForTheEnd();
    EXPECT_EQ(view.scanResult().items.get().size(), 3);
    EXPECT_EQ(view.scanResult().selectedCount(), 2);
    EXPECT_EQ(scans, 0);
}

TEST_F(Deletion, shows_what_was_freed_and_the_log) {
    askAndConfirm();
    waitForTheEnd();
    EXPECT_TRUE(view.shown().showDeletionComplete);
    EXPECT_EQ(view.shown().freedSpaceText, "40 bytes");
    EXPECT_EQ(view.deletionLog()->rowCount(), 2);
}

TEST_F(Deletion, shows_its_progress_while_it_runs) {
    askAndConfirm();
    EXPECT_TRUE(turnUntil([this] { return view.shown().deleteProgress == 0.5; }));
    EXPECT_TRUE(view.shown().isDeleting);
    EXPECT_EQ(view.shown().deletePercentText, "50%");
    waitForTheEnd();
    EXPECT_FALSE(view.shown().isDeleting);
}

TEST_F(Deletion, is_not_started_a_second_time_while_one_runs) {
    askAndConfirm();
    view.confirmDeletion();
    askAndConfirm();
    gate.release();
    waitForTheEnd();
    EXPECT_EQ(runs, 1);
}

TEST_F(Deletion, is_not_started_without_being_asked_for) {
    view.confirmDeletion();
    gate.release();
    test::settle();
    EXPECT_EQ(runs, 0);
}

TEST_F(Deletion, is_not_started_by_a_second_press_while_the_sheet_leaves) {
    view.requestDeletion();
    view.cancelDeletion();
    view.confirmDeletion();
    gate.release();
    test::settle();
    EXPECT_EQ(runs, 0);
}

TEST_F(Deletion, is_not_confirmed_while_a_scan_runs) {
    view.requestDeletion();
    view.scanResult().isScanning = true;
    view.confirmDeletion();
    EXPECT_FALSE(view.scanResult().isDeleting.get());
    EXPECT_TRUE(view.scanResult().showConfirmation);
    view.scanResult().isScanning = false;
    view.confirmDeletion();
    waitForTheEnd();
    EXPECT_EQ(runs, 1);
}

TEST_F(Deletion, is_asked_for_only_while_nothing_else_has_the_screen) {
    ScanResult& result = view.scanResult();
    for (Published<bool, ScanResult::Field>* const flag :
         {&result.isScanning, &result.isDeleting, &result.showDeletionComplete}) {
        *flag = true;
        view.requestDeletion();
        EXPECT_FALSE(view.scanResult().showConfirmation);
        *flag = false;
    }
    view.requestDeletion();
    EXPECT_TRUE(view.scanResult().showConfirmation);
}

TEST_F(Deletion, is_not_asked_for_by_a_second_press_on_done) {
    askAndConfirm();
    waitForTheEnd();
    view.dismissCompletion();
    view.requestDeletion();
    EXPECT_FALSE(view.scanResult().showConfirmation);
    test::settle();
    EXPECT_EQ(scans, 1);
}

TEST_F(Deletion, starts_a_real_scan_when_dismissed_even_after_a_demo) {
    view.startScan(true);
    test::settle();
    EXPECT_EQ(scans, 0);
    askAndConfirm();
    waitForTheEnd();
    test::Recorder recorder(view.scanResult());
    view.dismissCompletion();
    test::settle();
    EXPECT_EQ(scans, 1);
    EXPECT_THAT(recorder.take(),
                ElementsAre("showDeletionComplete=false", "isScanning=true", "items=[]",
                            "scanProgress=0", "bytesFoundSoFar=0", "items=[left]",
                            "isScanning=false", "hasScanned=true"));
}

TEST_F(Deletion, is_dismissed_once) {
    askAndConfirm();
    waitForTheEnd();
    view.dismissCompletion();
    test::settle();
    view.dismissCompletion();
    test::settle();
    EXPECT_EQ(scans, 1);
}

TEST_F(Deletion, cannot_be_dismissed_before_its_report_is_there) {
    askAndConfirm();
    view.dismissCompletion();
    EXPECT_FALSE(view.scanResult().isScanning.get());
    waitForTheEnd();
    EXPECT_EQ(scans, 0);
}

TEST_F(Deletion, is_asked_for_by_raising_the_confirmation_and_nothing_else) {
    test::Recorder recorder(view.scanResult());
    view.requestDeletion();
    EXPECT_THAT(recorder.take(), ElementsAre("showConfirmation=true"));
    EXPECT_TRUE(view.scanResult().showConfirmation);
    EXPECT_THAT(deleted, IsEmpty());
}

TEST_F(Deletion, is_cancelled_by_lowering_the_confirmation_and_nothing_else) {
    view.requestDeletion();
    test::Recorder recorder(view.scanResult());
    view.cancelDeletion();
    EXPECT_THAT(recorder.take(), ElementsAre("showConfirmation=false"));
    EXPECT_FALSE(view.scanResult().showConfirmation);
}

} // namespace
} // namespace drossbin
