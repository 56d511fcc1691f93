#include "platform/FileManager.h"
#include "platform/measuring/TreeSize.h"
#include "support/HostileTrees.h"
#include "support/ScratchFolder.h"
#include "support/SystemCalls.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <string>

namespace drossbin {
namespace {

using test::ScratchFolder;

/// Where folders hide the kinds of their entries, each look at an entry is a call.
enum class Kinds { told, hidden };

int callsOf(const std::function<void()>& job, Kinds kinds) {
    int calls = 0;
    test::SystemCallHook hook([&](const test::SystemCallHook::Call&) {
        ++calls;
        return 0;
    });
    if (kinds == Kinds::hidden) {
        hook.hideKinds();
    }
    job();
    return calls;
}

using Make = std::function<void(const std::string&, int)>;

struct Calls {
    int measuring;
    int removing;
};

/// What it takes to measure, and then to remove, a tree of that size.
Calls callsFor(const Make& make, int size, Kinds kinds) {
    const ScratchFolder scratch;
    const std::string item = scratch.folder("item");
    make(item, size);
    const int measuring = callsOf([&] { EXPECT_TRUE(treeSize(item, nullptr)); }, kinds);
    return {measuring, callsOf([&] { EXPECT_FALSE(FileManager::removeItem(item)); }, kinds)};
}

/// Twice the tree takes about twice the calls; four times would be out of proportion.
void expectInProportion(const Make& make, int size, Kinds kinds = Kinds::hidden) {
    const Calls once = callsFor(make, size, kinds);
    const Calls twice = callsFor(make, 2 * size, kinds);
    EXPECT_GT(once.measuring, size);
    EXPECT_GT(once.removing, size);
    EXPECT_LT(twice.measuring, 3 * once.measuring);
    EXPECT_LT(twice.removing, 3 * once.removing);
}

TEST(CallsOfAWalk, grow_in_proportion_to_the_files_of_a_folder) {
    expectInProportion(
        [](const std::string& item, int size) {
            for (int number = 0; number < size; ++number) {
                std::ofstream(item + "/" + std::to_string(number));
            }
        },
        1'000);
}

TEST(CallsOfAWalk, grow_in_proportion_to_the_folders_of_a_folder) {
    expectInProportion(
        [](const std::string& item, int size) {
            for (int number = 0; number < size; ++number) {
                test::makeChain(item, 1, std::to_string(number));
            }
        },
        500);
}

TEST(CallsOfAWalk, grow_in_proportion_to_the_depth) {
    expectInProportion([](const std::string& item, int size) { test::makeChain(item, size, "d"); },
                       300);
}

TEST(CallsOfAWalk, grow_in_proportion_to_the_depth_where_every_level_has_more_to_do) {
    for (const char* names : {"ab", "ba"}) {
        expectInProportion(
            [names](const std::string& item, int size) {
                test::makeComb(item, size, {names[0]}, {names[1]});
            },
            150);
    }
}

// Each branch closes the folder that holds them all, which is then read again.
TEST(CallsOfAWalk, grow_in_proportion_to_the_deep_branches_of_a_folder) {
    expectInProportion(
        [](const std::string& item, int size) {
            for (int number = 0; number < size; ++number) {
                test::makeChain(item, 20, std::to_string(number));
            }
        },
        50, Kinds::told);
}

} // namespace
} // namespace drossbin
