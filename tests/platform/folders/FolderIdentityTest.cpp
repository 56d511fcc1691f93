#include "platform/folders/FolderIdentity.h"

#include <gtest/gtest.h>

namespace drossbin {
namespace {

FolderIdentity folder(dev_t device, std::uint64_t mount) {
    return {.device = device, .inode = 7, .mount = mount};
}

// A subvolume of Btrfs has a device number of its own. It was once taken for a mount, and could not
// be deleted.
TEST(FolderIdentity, shares_the_mount_of_another_device_where_the_mounts_are_known) {
    EXPECT_TRUE(folder(1, 5).sharesMountWith(folder(2, 5)));
}

TEST(FolderIdentity, shares_no_mount_with_the_same_device_mounted_elsewhere) {
    EXPECT_FALSE(folder(1, 5).sharesMountWith(folder(1, 6)));
}

TEST(FolderIdentity, goes_by_the_device_where_a_mount_is_unknown) {
    EXPECT_TRUE(folder(1, 0).sharesMountWith(folder(1, 0)));
    EXPECT_TRUE(folder(1, 5).sharesMountWith(folder(1, 0)));
    EXPECT_TRUE(folder(1, 0).sharesMountWith(folder(1, 5)));
    EXPECT_FALSE(folder(1, 0).sharesMountWith(folder(2, 0)));
    EXPECT_FALSE(folder(1, 5).sharesMountWith(folder(2, 0)));
    EXPECT_FALSE(folder(1, 0).sharesMountWith(folder(2, 5)));
}

} // namespace
} // namespace drossbin
