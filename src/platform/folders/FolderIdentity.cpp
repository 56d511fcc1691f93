#include "platform/folders/FolderIdentity.h"

#include <fcntl.h>
#ifdef DROSSBIN_LINUX
#include <sys/sysmacros.h>
#endif

namespace drossbin {

std::optional<FolderIdentity> FolderIdentity::of(int folder) {
#ifdef DROSSBIN_LINUX
    // The device alone does not tell a folder from another one of the same file system that is
    // mounted over it. A system that refuses this call tells at least the device below.
    struct statx extended {};
    if (::statx(folder, "", AT_EMPTY_PATH, STATX_INO | STATX_MNT_ID, &extended) == 0) {
        return FolderIdentity{::makedev(extended.stx_dev_major, extended.stx_dev_minor),
                              extended.stx_ino, extended.stx_mnt_id};
    }
#endif
    struct stat status {};
    if (::fstat(folder, &status) != 0) {
        return std::nullopt;
    }
    return from(status);
}

} // namespace drossbin
