#include "Harness.h"

#include <QSemaphore>
#include <QThreadPool>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace drossbin {
namespace {

using test::item;
using test::servicesThatFind;
using test::turnUntil;
using ::testing::ElementsAre;
using enum DiskCategory;

/// A view whose scan waits for `gate` before it returns what it found.
struct HeldScan {
    explicit HeldScan(std::vector<DiskItem> found = {})
        : view(servicesWith(std::move(found))) {}
    ~HeldScan() {
        gate.release();
        test::settle();
    }
    HeldScan(const HeldScan&) = delete;
    HeldScan& operator=(const HeldScan&) = delete;
    HeldScan(HeldScan&&) = delete;
    HeldScan& operator=(HeldScan&&) = delete;

    Services servicesWith(std::vector<DiskItem> found) {
        Services services = servicesThatFind({});
        services.scan = [this, found](const DiskScanner::Progress&) {
            ++scans;
            gate.acquire();
            return found;
        };
        return services;
    }

    std::atomic<int> scans = 0;
    QSemaphore gate;
    ContentView view;
};

TEST(Scan, writes_the_fields_in_the_promised_order) {
    Services services = servicesThatFind({});
    services.scan = [](const DiskScanner::Progress& progress) {
        progress(0.0, "Scanning program caches...", 0);
        progress(0.5, "Scanning logs...", 40);
        return std::vector{item("a", 30), item("b", 10)};
    };
    ContentView view(services);
    test::Recorder recorder(view.scanResult());
    test::scan(view);
    EXPECT_THAT(recorder.take(),
                ElementsAre("isScanning=true", "items=[]", "scanProgress=0", "bytesFoundSoFar=0",
                            "scanProgress=0", "currentTask=\"Scanning program caches...\"",
                            "bytesFoundSoFar=0", "scanProgress=0.5",
                            "currentTask=\"Scanning logs...\"", "bytesFoundSoFar=40", "items=[a,b]",
                            "isScanning=false", "hasScanned=true"));
}

TEST(Scan, leaves_task_search_text_history_and_category_alone_when_it_starts) {
    HeldScan held;
    held.view.scanResult().currentTask = "before";
    held.view.scanResult().searchText = "kept";
    held.view.setSelectedCategory(3);
    held.view.startScan(false);
    EXPECT_EQ(held.view.scanResult().currentTask.get(), "before");
    EXPECT_EQ(held.view.scanResult().searchText.get(), "kept");
    EXPECT_FALSE(held.view.scanResult().hasScanned.get());
    EXPECT_EQ(held.view.selectedCategory(), 3);
}

TEST(Scan, shows_each_report_while_it_still_runs) {
    QSemaphore gate;
    Services services = servicesThatFind({});
    services.scan = [&gate](const DiskScanner::Progress& progress) {
        progress(0.25, "Scanning app data...", 1'000'000);
        gate.acquire();
        return std::vector<DiskItem>{};
    };
    ContentView view(services);
    view.startScan(false);
    EXPECT_TRUE(turnUntil([&view] { return view.shown().scanProgress == 0.25; }));
    EXPECT_EQ(view.shown().currentTask, "Scanning app data...");
    EXPECT_EQ(view.shown().bytesFoundText, "1 MB");
    EXPECT_TRUE(view.shown().isScanning);
    gate.release();
    test::settle();
    EXPECT_FALSE(view.shown().isScanning);
}

TEST(Scan, keeps_the_event_loop_turning) {
    HeldScan held;
    int turns = 0;
    QTimer heart;
    QObject::connect(&heart, &QTimer::timeout, [&turns] { ++turns; });
    heart.start(1);
    held.view.startScan(false);
    EXPECT_TRUE(turnUntil([&turns] { return turns >= 10; }));
    EXPECT_TRUE(held.view.scanResult().isScanning.get());
}

TEST(Scan, runs_off_the_main_thread) {
    Services services = servicesThatFind({});
    bool wasOnMainThread = true;
    services.scan = [&wasOnMainThread](const DiskScanner::Progress&) {
        wasOnMainThread = MainThread::isCurrent();
        return std::vector<DiskItem>{};
    };
    ContentView view(services);
    test::scan(view);
    EXPECT_FALSE(wasOnMainThread);
}

TEST(Scan, is_not_started_a_second_time_while_one_runs) {
    HeldScan held;
    held.view.startScan(false);
    held.view.startScan(false);
    held.view.startScan(true);
    EXPECT_TRUE(turnUntil([&held] { return held.scans > 0; }));
    held.gate.release(2);
    EXPECT_TRUE(turnUntil([&held] { return !held.view.scanResult().isScanning.get(); }));
    EXPECT_EQ(held.scans, 1);
}

TEST(Scan, is_not_started_while_a_sheet_is_up) {
    ContentView view(servicesThatFind({item("a", 1)}));
    ScanResult& result = view.scanResult();
    for (Published<bool, ScanResult::Field>* const flag :
         {&result.showConfirmation, &result.isDeleting, &result.showDeletionComplete}) {
        *flag = true;
        test::scan(view);
        EXPECT_FALSE(result.hasScanned.get());
        *flag = false;
    }
    test::scan(view);
    EXPECT_TRUE(result.hasScanned.get());
}

// The screens' own pictures are drawn with those threads where there is much to blend.
TEST(Scan, keeps_none_of_the_toolkits_own_threads) {
    HeldScan held;
    held.view.startScan(false);
    EXPECT_TRUE(turnUntil([&held] { return held.scans > 0; }));
    EXPECT_EQ(QThreadPool::globalInstance()->activeThreadCount(), 0);
}

TEST(Scan, can_be_started_again_after_its_end) {
    HeldScan held;
    held.gate.release(2);
    test::scan(held.view);
    test::scan(held.view);
    EXPECT_EQ(held.scans, 2);
}

TEST(Scan, chooses_the_first_category_that_has_items) {
    ContentView view(servicesThatFind({item("a", 9, oldDownloads), item("b", 1, logFiles)}));
    test::scan(view);
    EXPECT_EQ(view.selectedCategory(), static_cast<int>(logFiles));
    EXPECT_EQ(view.screen(), ContentView::Category);
}

TEST(Scan, chooses_only_among_what_the_search_text_lets_through) {
    ContentView view(servicesThatFind({item("npm", 9, packageCaches), item("Mail", 1, appData)}));
    view.setSearchText("mail");
    test::scan(view);
    EXPECT_EQ(view.selectedCategory(), static_cast<int>(appData));
}

TEST(Scan, leaves_the_category_when_the_search_text_matches_nothing) {
    ContentView view(servicesThatFind({item("npm", 9, packageCaches)}));
    view.setSearchText("nothing");
    test::scan(view);
    EXPECT_EQ(view.selectedCategory(), -1);
    EXPECT_EQ(view.screen(), ContentView::Overview);
}

TEST(Scan, leaves_the_category_and_shows_the_empty_state_when_it_finds_nothing) {
    ContentView view(servicesThatFind({}));
    view.setSelectedCategory(2);
    test::scan(view);
    EXPECT_EQ(view.selectedCategory(), 2);
    EXPECT_EQ(view.screen(), ContentView::Empty);
}

TEST(ScanDeathTest, stops_the_program_when_the_session_is_touched_from_its_thread) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto touch = [] {
        ContentView* touched = nullptr;
        Services services = servicesThatFind({});
        services.scan = [&touched](const DiskScanner::Progress&) {
            touched->scanResult().scanProgress = 0.5;
            return std::vector<DiskItem>{};
        };
        ContentView view(services);
        touched = &view;
        test::scan(view);
    };
    EXPECT_DEATH(touch(), "drossbin: the session state was touched off the main thread");
}

} // namespace
} // namespace drossbin
