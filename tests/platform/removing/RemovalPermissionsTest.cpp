#include "platform/FileManager.h"
#include "support/Limits.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <string>
#include <sys/stat.h>

namespace drossbin {
namespace {

using test::holdsForOrdinaryUser;
using test::ScratchFolder;

bool isThere(const std::string& path) {
    return FileManager::attributesOfItem(path).has_value();
}

/// Removes `item` of `scratch` while the folder at `locked` has the permissions `mode`, which it
/// loses in the end so that the scratch folder can go.
std::error_code removeWhileLocked(const std::string& item, const std::string& locked, mode_t mode) {
    ::chmod(locked.c_str(), mode);
    const std::error_code error = FileManager::removeItem(item);
    ::chmod(locked.c_str(), 0700);
    return error;
}

TEST(RemovalWithoutPermission, fails_for_an_item_in_a_folder_that_may_not_be_written) {
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        const ScratchFolder scratch;
        scratch.file("locked/item", 1);
        return removeWhileLocked(scratch / "locked/item", scratch / "locked", 0500) ==
                   std::errc::permission_denied &&
               isThere(scratch / "locked/item");
    }));
}

#if defined(DROSSBIN_LINUX) || defined(O_SEARCH) // no other system has a way to
TEST(RemovalWithoutPermission, needs_none_to_read_the_folder_that_the_item_lies_in) {
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        const ScratchFolder scratch;
        scratch.file("unreadable/item/file", 1);
        return !removeWhileLocked(scratch / "unreadable/item", scratch / "unreadable", 0300) &&
               !isThere(scratch / "unreadable/item");
    }));
}
#endif

TEST(RemovalWithoutPermission, fails_when_a_folder_inside_may_not_be_written) {
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        const ScratchFolder scratch;
        scratch.file("item/locked/file", 1);
        return removeWhileLocked(scratch / "item", scratch / "item/locked", 0500) ==
                   std::errc::permission_denied &&
               isThere(scratch / "item/locked/file");
    }));
}

TEST(RemovalWithoutPermission, fails_when_a_folder_inside_may_not_be_read) {
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        const ScratchFolder scratch;
        scratch.file("item/locked/file", 1);
        return removeWhileLocked(scratch / "item", scratch / "item/locked", 0300) ==
                   std::errc::permission_denied &&
               isThere(scratch / "item/locked/file");
    }));
}

TEST(RemovalWithoutPermission, removes_an_unreadable_folder_that_is_empty) {
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        const ScratchFolder scratch;
        scratch.folder("item/locked");
        return !removeWhileLocked(scratch / "item", scratch / "item/locked", 0) &&
               !isThere(scratch / "item");
    }));
}

TEST(RemovalWithoutPermission, removes_files_that_may_not_be_read_or_written) {
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        const ScratchFolder scratch;
        const std::string file = scratch.file("item/file", 1);
        return !removeWhileLocked(scratch / "item", file, 0) && !isThere(scratch / "item");
    }));
}

} // namespace
} // namespace drossbin
