#include "model/ScanResult.h"

#include <gtest/gtest.h>

#include <csignal>
#include <limits>
#include <thread>
#include <tuple>

namespace drossbin {
namespace {

DiskItem item(std::int64_t size) {
    return {.size = size, .category = DiskCategory::appData, .isSelected = true};
}

class ScanResultDeathTest : public testing::Test {
  protected:
    ScanResultDeathTest() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }

    static constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    static constexpr const char* overflow = "^drossbin: a sum of sizes exceeds 64 bits\n$";
    static constexpr const char* wrongThread =
        "^drossbin: the session state was touched off the main thread\n$";

    template <class Use>
    static void useOnAnotherThread(Use use) {
        MainThread::connect([](const MainThread::Job&) {});
        std::thread(use).join();
    }

    ScanResult result;
};

TEST_F(ScanResultDeathTest, stops_the_program_when_a_sum_overflows) {
    result.items = {item(most), item(1)};
    const testing::KilledBySignal aborted(SIGABRT);
    EXPECT_EXIT(std::ignore = result.totalSize(), aborted, overflow);
    EXPECT_EXIT(std::ignore = result.selectedSize(), aborted, overflow);
    EXPECT_EXIT(std::ignore = result.categorySize(DiskCategory::appData), aborted, overflow);
}

TEST_F(ScanResultDeathTest, does_not_stop_for_the_largest_sum_that_fits) {
    result.items = {item(most - 1), item(1)};
    EXPECT_EQ(result.totalSize(), most);
    EXPECT_EQ(result.selectedSize(), most);
    EXPECT_EQ(result.categorySize(DiskCategory::appData), most);
}

TEST_F(ScanResultDeathTest, stops_the_program_when_touched_off_the_main_thread) {
    const testing::KilledBySignal aborted(SIGABRT);
    EXPECT_EXIT(useOnAnotherThread([this] { result.isScanning = true; }), aborted, wrongThread);
    EXPECT_EXIT(useOnAnotherThread([this] { std::ignore = result.isScanning.get(); }), aborted,
                wrongThread);
    EXPECT_EXIT(useOnAnotherThread([this] { std::ignore = result.totalSize(); }), aborted,
                wrongThread);
    EXPECT_EXIT(useOnAnotherThread([this] { result.deselectAll(); }), aborted, wrongThread);
    EXPECT_EXIT(useOnAnotherThread([this] { result.items.modify([](auto&) {}); }), aborted,
                wrongThread);
}

TEST_F(ScanResultDeathTest, stops_the_program_when_someone_subscribes_off_the_main_thread) {
    EXPECT_EXIT(useOnAnotherThread([this] {
                    std::ignore = result.objectWillChange.subscribe([](ScanResult::Field) {});
                }),
                testing::KilledBySignal(SIGABRT), wrongThread);
}

TEST_F(ScanResultDeathTest, moves_with_the_main_thread) {
    std::thread([this] {
        MainThread::connect([](const MainThread::Job&) {});
        result.isScanning = true;
    }).join();
    MainThread::connect([](const MainThread::Job&) {});
    EXPECT_TRUE(result.isScanning);
}

} // namespace
} // namespace drossbin
