#include "Harness.h"

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

constexpr std::chrono::nanoseconds demoStepTime = 300ms;

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

/// Sleepers on the real clock, and how long each slept.
class Sleepers {
  public:
    QCoro::Task<> sleep(std::chrono::nanoseconds time) {
        const auto start = std::chrono::steady_clock::now();
        co_await m_services.sleep(time);
        slept.emplace_back(time, std::chrono::steady_clock::now() - start);
    }

    std::vector<std::pair<std::chrono::nanoseconds, std::chrono::nanoseconds>> slept;

  private:
    const Services m_services = Services::real();
};

// A coarse timer is moved to the nearest of the moments that all such timers share, 25 ms apart.
// Whatever the time is now, one of so many different sleeps would end early.
TEST(DemoScanSleep, is_never_shorter_than_asked_on_the_real_clock) {
    constexpr std::size_t count = 50;
    Sleepers sleepers;
    for (std::size_t number = 0; number < count; ++number) {
        sleepers.sleep(demoStepTime + number * 1ms);
    }
    sleepers.sleep(1ns);
    EXPECT_THAT(sleepers.slept, IsEmpty());
    EXPECT_TRUE(test::turnUntil([&] { return sleepers.slept.size() == count + 1; }));
    for (const auto& [asked, slept] : sleepers.slept) {
        EXPECT_GE(slept, asked);
    }
}

} // namespace
} // namespace drossbin
