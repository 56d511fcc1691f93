#pragma once

#include <cstdint>
#include <optional>
#include <sys/stat.h>

namespace drossbin {

/// Which folder an open descriptor stands for, and through which mount it is reached.
struct FolderIdentity {
    dev_t device = 0;
    ino_t inode = 0;
    std::uint64_t mount = 0; ///< 0 where the system does not tell

    bool operator==(const FolderIdentity&) const = default;

    /// Whether both stand for one folder. The system may tell the mount of one and not of the
    /// other.
    [[nodiscard]] bool isSameFolderAs(const FolderIdentity& other) const {
        return device == other.device && inode == other.inode && sharesMountWith(other);
    }

    /// The mounts alone tell where both are known: the subvolumes of one mount, which removal may
    /// enter, have devices of their own.
    [[nodiscard]] bool sharesMountWith(const FolderIdentity& other) const {
        const bool areMountsKnown = mount != 0 && other.mount != 0;
        return areMountsKnown ? mount == other.mount : device == other.device;
    }

    /// What a status tells: not the mount.
    static FolderIdentity from(const struct stat& status) {
        return {status.st_dev, status.st_ino, 0};
    }

    /// The identity of an open folder; absent, and the reason in `errno`, when it cannot be asked.
    static std::optional<FolderIdentity> of(int folder);
};

} // namespace drossbin
