#include "Session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <coroutine>
#include <utility>

namespace drossbin {
namespace {

using test::item;
using test::servicesThatFind;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace std::chrono_literals;

/// A clock that the test turns: who sleeps wakes when it rings.
class Clock {
  public:
    QCoro::Task<> sleep(std::chrono::nanoseconds time) {
        slept.push_back(time);
        co_await Bell{m_sleeper};
    }

    void ring() { std::exchange(m_sleeper, {}).resume(); }

    std::vector<std::chrono::nanoseconds> slept;

  private:
    struct Bell {
        std::coroutine_handle<>& sleeper;
        [[nodiscard]] bool await_ready() const { return false; }
        void await_suspend(std::coroutine_handle<> handle) { sleeper = handle; }
        void await_resume() const {}
    };

    std::coroutine_handle<> m_sleeper;
};

struct DemoScan : ::testing::Test {
    DemoScan()
        : view(services())
        , recorder(view.scanResult()) {}

    void TearDown() override { test::settle(); }

    // A run that is left asleep is never freed.
    void ringToTheEnd() {
        for (int step = 0; step < 5; ++step) {
            clock.ring();
        }
    }

    Services services() {
        Services services = servicesThatFind({});
        services.demoItems = [] { return std::vector{item("sample", 7, DiskCategory::appData)}; };
        services.sleep = [this](std::chrono::nanoseconds time) { return clock.sleep(time); };
        services.scan = [this](const DiskScanner::Progress&) {
            hasScannedDisk = true;
            return std::vector<DiskItem>{};
        };
        return services;
    }

    Clock clock;
    bool hasScannedDisk = false;
    ContentView view;
    test::Recorder recorder;
};

TEST_F(DemoScan, writes_five_steps_each_after_its_sleep_and_then_the_samples) {
    view.startScan(true);
    EXPECT_THAT(recorder.take(),
                ElementsAre("isScanning=true", "items=[]", "scanProgress=0", "bytesFoundSoFar=0"));
    clock.ring();
    EXPECT_THAT(recorder.take(),
                ElementsAre("scanProgress=0.2", "currentTask=\"Scanning program caches...\"",
                            "bytesFoundSoFar=40000000000"));
    clock.ring();
    EXPECT_THAT(recorder.take(),
                ElementsAre("scanProgress=0.4", "currentTask=\"Scanning package caches...\"",
                            "bytesFoundSoFar=80000000000"));
    clock.ring();
    EXPECT_THAT(recorder.take(),
                ElementsAre("scanProgress=0.6", "currentTask=\"Scanning app data...\"",
                            "bytesFoundSoFar=120000000000"));
    clock.ring();
    EXPECT_THAT(recorder.take(), ElementsAre("scanProgress=0.8", "currentTask=\"Scanning logs...\"",
                                             "bytesFoundSoFar=160000000000"));
    clock.ring();
    EXPECT_THAT(recorder.take(), ElementsAre("scanProgress=1", "currentTask=\"Scan complete\"",
                                             "bytesFoundSoFar=200000000000", "items=[sample]",
                                             "isScanning=false", "hasScanned=true"));
    EXPECT_THAT(clock.slept, ElementsAre(300ms, 300ms, 300ms, 300ms, 300ms));
    EXPECT_EQ(view.selectedCategory(), static_cast<int>(DiskCategory::appData));
}

TEST_F(DemoScan, waits_for_its_clock) {
    view.startScan(true);
    recorder.take();
    test::turn();
    EXPECT_THAT(recorder.take(), IsEmpty());
    EXPECT_EQ(view.screen(), ContentView::Scanning);
    ringToTheEnd();
}

TEST_F(DemoScan, never_scans_the_disk) {
    view.startScan(true);
    ringToTheEnd();
    test::turn();
    EXPECT_FALSE(hasScannedDisk);
    test::scan(view);
    EXPECT_TRUE(hasScannedDisk);
}

TEST(DemoScanSleep, lasts_as_long_as_asked_on_the_real_clock) {
    bool isAwake = false;
    const auto sleeper = [&isAwake]() -> QCoro::Task<> {
        co_await Services::real().sleep(1ms);
        isAwake = true;
    };
    sleeper();
    EXPECT_FALSE(isAwake);
    EXPECT_TRUE(test::turnUntil([&isAwake] { return isAwake; }));
}

} // namespace
} // namespace drossbin
