#pragma once

#include "scanner/DiskScanner.h"
#include "support/Changes.h"
#include "support/Limits.h"
#include "support/ScratchFolder.h"
#include "support/SystemCalls.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <ostream>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace drossbin::test {

inline constexpr std::int64_t absent = -1;

/// A state of the disk, and what an item in it comes to.
struct SizeSituation {
    std::string name;
    std::function<void(const ScratchFolder&)> make;
    std::int64_t bytes;                    ///< of all but folders, or `absent`
    std::vector<std::string> folders = {}; ///< which count as well, with whatever size they have
    std::string item = "item";
    Strike meanwhile = {};
};

inline void PrintTo(const SizeSituation& situation, std::ostream* stream) {
    *stream << situation.name;
}

inline std::int64_t expectedIn(const ScratchFolder& scratch, const SizeSituation& situation) {
    std::int64_t size = situation.bytes;
    for (const std::string& folder : situation.folders) {
        struct stat status {};
        EXPECT_EQ(::lstat((scratch / folder).c_str(), &status), 0) << folder;
        size += status.st_size;
    }
    return size;
}

inline void unlock(const std::string& folder) {
    std::error_code none;
    if (!std::filesystem::is_symlink(folder, none)) {
        ::chmod(folder.c_str(), 0700);
    }
}

/// Makes the situation and measures its item, as an ordinary user.
inline void expectAsTold(const SizeSituation& situation) {
    EXPECT_TRUE(holdsForOrdinaryUser([&] {
        const ScratchFolder scratch;
        situation.make(scratch);
        const std::int64_t expected = expectedIn(scratch, situation);
        const SystemCallHook hook([&](const SystemCallHook::Call& call) {
            return situation.meanwhile ? situation.meanwhile(scratch, call) : 0;
        });
        const auto size = DiskScanner::directorySize(scratch / situation.item);
        EXPECT_EQ(size.value_or(absent), expected);
        unlock(scratch / "item");
        unlock(scratch / "item/locked");
        return !testing::Test::HasFailure();
    }));
}

inline std::string nameOf(const testing::TestParamInfo<SizeSituation>& instance) {
    return instance.param.name;
}

} // namespace drossbin::test
