#include "platform/FileManager.h"
#include "support/Meanwhile.h"
#include "support/ScratchFolder.h"
#include "support/SystemCalls.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <unistd.h>

namespace drossbin {
namespace {

using test::ScratchFolder;
using test::SystemCallHook;

bool isThere(const std::string& path) {
    return FileManager::attributesOfItem(path).has_value();
}

TEST(RemovalRaceThatNeverEnds, is_given_up_against_someone_who_keeps_filling_the_folder) {
    const ScratchFolder scratch;
    const std::string item = scratch.folder("item");
    const SystemCallHook hook([&](const SystemCallHook::Call& call) {
        if (call.function == "unlinkat" && call.name == "item") {
            scratch.file("item/late", 1);
        }
        return 0;
    });
    EXPECT_EQ(FileManager::removeItem(item), std::errc::directory_not_empty);
    EXPECT_TRUE(isThere(item + "/late"));
}

TEST(RemovalRaceThatNeverEnds, spares_what_a_link_leads_to_that_takes_the_place_of_a_folder) {
    using std::chrono::steady_clock;
    const ScratchFolder scratch;
    const std::string canary = scratch.file("canary/file", 1);
    const std::string item = scratch.folder("item");
    const test::Meanwhile swapping([&, path = item + "/swapped", aside = item + "/aside"] {
        ::rename(path.c_str(), aside.c_str());
        (void)!::symlink("../canary", path.c_str()); // while the other thread is faster
        ::unlink(path.c_str());
        ::rename(aside.c_str(), path.c_str());
    });
    const auto end = steady_clock::now() + std::chrono::seconds(3);
    int removals = 0;
    for (; isThere(canary) && steady_clock::now() < end; ++removals) {
        try {
            scratch.file("item/swapped/a/b/file", 1);
        } catch (const std::exception&) {
            continue; // the other thread has just moved a folder away
        }
        FileManager::removeItem(item); // whether it ends well is a matter of luck
    }
    EXPECT_TRUE(isThere(canary)) << "after " << removals << " removals";
    EXPECT_GT(removals, 10);
}

} // namespace
} // namespace drossbin
