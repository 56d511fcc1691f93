#include "Harness.h"
#include "support/ScratchFolder.h"
#include "support/SystemCalls.h"

#include <gtest/gtest.h>

#ifdef __GLIBC__ // which tells how much memory it has handed out

#include <filesystem>
#include <iterator>
#include <malloc.h>

namespace drossbin {
namespace {

auto entriesOf(const char* folder) {
    return std::distance(std::filesystem::directory_iterator(folder), {});
}

struct LongLife : ::testing::Test {
    /// A scan that finds something, its deletion, and the scan that follows and finds nothing.
    void run() {
        home.file("Library/Caches/cache/file", 2'000'000);
        test::scan(view);
        view.smartSelect();
        view.requestDeletion();
        view.confirmDeletion();
        test::settle();
        freed += view.scanResult().freedSpace.get();
        view.dismissCompletion();
        test::settle();
        left += view.scanResult().items.get().size();
    }

    void runTimes(int count) {
        for (int time = 0; time < count; ++time) {
            run();
        }
    }

    test::ScratchHome home;
    test::ScratchFolder logs;
    test::StandInFolder systemLogs{"/var/log", logs.path()};
    ContentView view{Services::real()};
    std::int64_t freed = 0;
    std::size_t left = 0;
};

TEST_F(LongLife, holds_no_more_after_500_deletions_than_after_50) {
    runTimes(50);
    const auto descriptors = entriesOf("/proc/self/fd");
    const auto threads = entriesOf("/proc/self/task");
    const std::size_t memory = ::mallinfo2().uordblks;
    runTimes(450);
    EXPECT_EQ(freed, 500 * 2'000'000);
    EXPECT_EQ(left, 0U);
    EXPECT_EQ(entriesOf("/proc/self/fd"), descriptors);
    // A thread in the background may still be on its last steps.
    EXPECT_TRUE(test::turnUntil([&] { return entriesOf("/proc/self/task") <= threads; }));
    // What the libraries keep may still change a little. The smallest block takes twice as much.
    EXPECT_LT(::mallinfo2().uordblks, memory + 450 * 16);
}

} // namespace
} // namespace drossbin

#endif
