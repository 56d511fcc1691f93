#include "platform/measuring/MeasuringPool.h"

#include "platform/measuring/TreeSize.h"
#include "support/HostileTrees.h"
#include "support/Limits.h"
#include "support/Meanwhile.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <sched.h>
#include <string>
#include <sys/stat.h>

namespace drossbin {
namespace {

using test::ScratchFolder;

/// Trees whose walks stand in many folders at once and have much to give away.
std::int64_t makeTrees(const ScratchFolder& scratch) {
    std::int64_t size = 0;
    for (int number = 0; number < 40; ++number) {
        const std::string comb = scratch.folder(std::to_string(number));
        size += test::makeComb(comb, 60, number % 2 == 0 ? "a" : "z", "sibling");
        struct stat status {};
        EXPECT_EQ(::lstat(comb.c_str(), &status), 0);
        size += status.st_size;
    }
    return size;
}

/// Made while the process may still open many files. Never destroyed, as its threads never end.
MeasuringPool* poolOf16Cores() {
    static MeasuringPool* const pool = std::make_unique<MeasuringPool>(16).release();
    return pool;
}

/// Measures on so many threads at once while the process may have so many files open, 30 of which
/// are open already.
void expectExact(int threads, rlim_t descriptors) {
    const ScratchFolder scratch;
    const std::int64_t size = makeTrees(scratch);
    MeasuringPool* const pool = poolOf16Cores();
    const test::FewDescriptors few(descriptors);
    test::onThreads(threads, [&] {
        for (int round = 0; round < 10; ++round) {
            EXPECT_EQ(treeSize(scratch.path(), pool), size);
        }
    });
}

TEST(MeasuringPoolOf16Cores, is_exact_with_64_descriptors) {
    expectExact(1, 64);
}

TEST(MeasuringPoolOf16Cores, is_exact_with_40_descriptors) {
    expectExact(1, 40);
}

TEST(MeasuringPoolOf16Cores, is_exact_with_64_descriptors_for_several_walks) {
    expectExact(6, 64);
}

TEST(MeasuringPoolOf16Cores, is_exact_with_40_descriptors_for_several_walks) {
    expectExact(6, 40);
}

// Each of these walks holds a descriptor already when it lacks the next one.
TEST(MeasuringPoolOf16Cores, is_exact_for_more_walks_than_there_are_descriptors) {
    expectExact(20, 40);
}

#ifdef DROSSBIN_LINUX // other systems do not tell

cpu_set_t coresOf(pid_t thread) {
    cpu_set_t cores{};
    EXPECT_EQ(::sched_getaffinity(thread, sizeof(cores), &cores), 0);
    return cores;
}

// To leave the core of the thread that started it, a helper gives that core up for a moment.
TEST(MeasuringPoolOf16Cores, leaves_its_helpers_every_core) {
    const ScratchFolder scratch;
    const std::int64_t size = makeTrees(scratch);
    ASSERT_EQ(treeSize(scratch.path(), poolOf16Cores()), size);
    const cpu_set_t cores = coresOf(0);
    int helpers = 0;
    for (const auto& thread : std::filesystem::directory_iterator("/proc/self/task")) {
        cpu_set_t its = coresOf(std::stoi(thread.path().filename()));
        // One that was started last may still be on its way.
        for (int look = 0; look < 1'000'000 && !CPU_EQUAL(&its, &cores); ++look) {
            its = coresOf(std::stoi(thread.path().filename()));
        }
        EXPECT_TRUE(CPU_EQUAL(&its, &cores)) << thread.path();
        ++helpers;
    }
    EXPECT_GT(helpers, 1);
}

#endif

} // namespace
} // namespace drossbin
