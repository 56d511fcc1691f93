#pragma once

#include <cstdint>
#include <optional>
#include <sys/types.h>

namespace drossbin {

/// Which folder an open descriptor stands for, and through which mount it is reached.
struct FolderIdentity {
    dev_t device = 0;
    ino_t inode = 0;
    std::uint64_t mount = 0; ///< 0 where the system does not tell

    bool operator==(const FolderIdentity&) const = default;

    [[nodiscard]] bool sharesMountWith(const FolderIdentity& other) const {
        return device == other.device && mount == other.mount;
    }

    /// The identity of an open folder; absent, and the reason in `errno`, when it cannot be asked.
    static std::optional<FolderIdentity> of(int folder);
};

} // namespace drossbin
