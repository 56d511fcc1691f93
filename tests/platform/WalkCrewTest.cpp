#include "platform/WalkCrew.h"

#include "platform/TreeSize.h"
#include "support/HostileTrees.h"
#include "support/Limits.h"
#include "support/Meanwhile.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <memory>
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
WalkCrew* crewOf16Cores() {
    static WalkCrew* const crew = std::make_unique<WalkCrew>(16).release();
    return crew;
}

/// Measures on so many threads at once while the process may have so many files open, 30 of which
/// are open already.
void expectExact(int threads, rlim_t descriptors) {
    const ScratchFolder scratch;
    const std::int64_t size = makeTrees(scratch);
    WalkCrew* const crew = crewOf16Cores();
    const test::FewDescriptors few(descriptors);
    test::onThreads(threads, [&] {
        for (int round = 0; round < 10; ++round) {
            EXPECT_EQ(treeSize(scratch.path(), crew), size);
        }
    });
}

TEST(WalkCrewOf16Cores, is_exact_with_64_descriptors) {
    expectExact(1, 64);
}

TEST(WalkCrewOf16Cores, is_exact_with_40_descriptors) {
    expectExact(1, 40);
}

TEST(WalkCrewOf16Cores, is_exact_with_64_descriptors_for_several_walks) {
    expectExact(6, 64);
}

TEST(WalkCrewOf16Cores, is_exact_with_40_descriptors_for_several_walks) {
    expectExact(6, 40);
}

// Each of these walks holds a descriptor already when it lacks the next one.
TEST(WalkCrewOf16Cores, is_exact_for_more_walks_than_there_are_descriptors) {
    expectExact(20, 40);
}

} // namespace
} // namespace drossbin
