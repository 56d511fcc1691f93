#include "platform/FileManager.h"
#include "support/MountNamespace.h"
#include "support/ScratchFolder.h"
#include "support/SystemCalls.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <functional>
#include <string>

namespace drossbin {
namespace {

using test::mountAgain;
using test::mountMemory;
using test::ScratchFolder;
using test::SystemCallHook;

bool isThere(const std::string& path) {
    return FileManager::attributesOfItem(path).has_value();
}

void expectWithMountNamespace(const std::function<bool()>& job) {
    const auto holds = test::holdsInMountNamespace(job);
    if (!holds) {
        GTEST_SKIP() << "this system lets the tests make no mounts of their own";
    }
    EXPECT_TRUE(*holds);
}

bool isBusy(const std::string& path) {
    return FileManager::removeItem(path) == std::errc::device_or_resource_busy;
}

TEST(RemovalOfAnItemWithAMountInside, fails_and_leaves_another_file_system_alone) {
    const ScratchFolder scratch;
    const std::string mount = scratch.folder("item/a/mount");
    expectWithMountNamespace([&] {
        return mountMemory(mount, "64k") && !scratch.file("item/a/mount/file", 1).empty() &&
               isBusy(scratch / "item") && isThere(mount + "/file");
    });
}

#ifdef DROSSBIN_LINUX // which tells mounts apart
TEST(RemovalOfAnItemWithAMountInside, fails_and_leaves_a_folder_of_the_same_file_system_alone) {
    const ScratchFolder scratch;
    const std::string mount = scratch.folder("item/a/mount");
    scratch.file("outside/file", 1);
    expectWithMountNamespace([&] {
        return mountAgain(scratch / "outside", mount) && isBusy(scratch / "item") &&
               isThere(scratch / "outside/file");
    });
}
#endif

TEST(RemovalOfAnItemWithAMountInside, fails_and_leaves_a_file_of_the_same_file_system_alone) {
    const ScratchFolder scratch;
    const std::string mount = scratch.file("item/mount", 0);
    const std::string outside = scratch.file("outside", 5);
    expectWithMountNamespace([&] {
        return mountAgain(outside, mount) && isBusy(scratch / "item") &&
               FileManager::attributesOfItem(outside)->size == 5 && isThere(mount);
    });
}

// A system may refuse the newer call that tells mounts apart.
TEST(RemovalOfAnItemWithAMountInside, fails_by_the_device_alone_where_no_mounts_are_told) {
    const ScratchFolder scratch;
    const std::string mount = scratch.folder("item/a/mount");
    expectWithMountNamespace([&] {
        const SystemCallHook refusal(
            [](const SystemCallHook::Call& call) { return call.function == "statx" ? EPERM : 0; });
        return mountMemory(mount, "64k") && !scratch.file("item/a/mount/file", 1).empty() &&
               isBusy(scratch / "item") && isThere(mount + "/file");
    });
}

TEST(RemovalOfAMount, fails_and_leaves_what_is_on_it) {
    const ScratchFolder scratch;
    const std::string mount = scratch.folder("mount");
    expectWithMountNamespace([&] {
        return mountMemory(mount, "64k") && !scratch.file("mount/file", 1).empty() &&
               isBusy(mount) && isThere(mount + "/file");
    });
}

TEST(RemovalOnAMount, removes_an_item_that_lies_on_it_whole) {
    const ScratchFolder scratch;
    const std::string mount = scratch.folder("mount");
    expectWithMountNamespace([&] {
        return mountMemory(mount, "64k") && !scratch.file("mount/item/folder/file", 1).empty() &&
               !FileManager::removeItem(mount + "/item") && !isThere(mount + "/item");
    });
}

TEST(RemovalOnAReadOnlyMount, fails_and_leaves_all) {
    const ScratchFolder scratch;
    const std::string mount = scratch.folder("mount");
    scratch.file("outside/item/file", 1);
    expectWithMountNamespace([&] {
        return mountAgain(scratch / "outside", mount) && test::makeReadOnly(mount) &&
               FileManager::removeItem(mount + "/item") == std::errc::read_only_file_system &&
               isThere(scratch / "outside/item/file");
    });
}

/// A folder for an overlay, which would have to lie on a file system that can carry one.
bool carriesOverlay(const ScratchFolder& scratch) {
    for (const char* folder : {"lower", "changed", "work", "shown"}) {
        scratch.folder(folder);
    }
    return test::holdsInMountNamespace([&] { return test::mountOverlay(scratch.path()); })
        .value_or(false);
}

// What lies below is hidden by whiteouts, and folders may be of both layers.
TEST(RemovalOnAnOverlay, removes_what_is_of_either_layer_and_leaves_the_lower_one_as_it_is) {
    const ScratchFolder scratch;
    if (!carriesOverlay(scratch)) {
        GTEST_SKIP() << "no overlay can be mounted here";
    }
    scratch.file("lower/item/below/file", 1);
    scratch.file("changed/item/below/other", 1);
    scratch.file("changed/item/above/file", 1);
    expectWithMountNamespace([&] {
        return test::mountOverlay(scratch.path()) && isThere(scratch / "shown/item/below/other") &&
               !FileManager::removeItem(scratch / "shown/item") &&
               !isThere(scratch / "shown/item") && isThere(scratch / "lower/item/below/file");
    });
}

TEST(RemovalOfAnItemWithAnOverlayInside, fails_and_leaves_both_layers_alone) {
    const ScratchFolder scratch;
    if (!carriesOverlay(scratch)) {
        GTEST_SKIP() << "no overlay can be mounted here";
    }
    scratch.file("lower/file", 1);
    scratch.file("changed/other", 1);
    expectWithMountNamespace([&] {
        return test::mountOverlay(scratch.path()) && isBusy(scratch / "shown") &&
               isThere(scratch / "shown/file") && isThere(scratch / "changed/other");
    });
}

#ifdef DROSSBIN_LINUX
// A subvolume of Btrfs, as a "~/.cache" kept out of snapshots is one, was once taken for a mount.
TEST(RemovalOfASubvolume, removes_it_with_all_that_is_in_it_subvolumes_too) {
    const ScratchFolder scratch;
    const std::string home = scratch.folder("home");
    const auto isMounted = test::holdsInMountNamespace([&] { return test::mountBtrfs(home); });
    if (!isMounted.value_or(false)) {
        GTEST_SKIP() << "no Btrfs can be made and mounted here";
    }
    const std::string commands = "cd " + home +
                                 " && btrfs --quiet subvolume create .cache"
                                 " && mkdir .cache/folder && touch .cache/folder/file"
                                 " && btrfs --quiet subvolume create .cache/folder/inner"
                                 " && touch .cache/folder/inner/file";
    expectWithMountNamespace([&] {
        return test::mountBtrfs(home) && std::system(commands.c_str()) == 0 &&
               !FileManager::removeItem(home + "/.cache") && !isThere(home + "/.cache");
    });
}
#endif

TEST(AtomicWriteOnAFullDisk, fails_and_leaves_nothing_behind) {
    const ScratchFolder scratch;
    const std::string mount = scratch.folder("mount");
    expectWithMountNamespace([&] {
        return mountMemory(mount, "64k") &&
               FileManager::writeAtomically(std::string(100'000, 'x'), mount + "/log") ==
                   std::errc::no_space_on_device &&
               FileManager::contentsOfDirectory(mount)->empty();
    });
}

TEST(AtomicWriteOnAFullDisk, writes_what_fits) {
    const ScratchFolder scratch;
    const std::string mount = scratch.folder("mount");
    expectWithMountNamespace([&] {
        return mountMemory(mount, "64k") &&
               !FileManager::writeAtomically(std::string(50'000, 'x'), mount + "/log") &&
               FileManager::attributesOfItem(mount + "/log")->size == 50'000;
    });
}

} // namespace
} // namespace drossbin
