#pragma once

#include "platform/FileManager.h"
#include "support/Changes.h"
#include "support/ScratchFolder.h"
#include "support/SystemCalls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <ostream>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace drossbin::test {

/// A state of the disk, and what becomes of it when an item in it is removed.
struct RemovalSituation {
    using Make = std::function<void(const ScratchFolder&)>;

    std::string name;
    Make make;
    std::vector<std::string> left = {}; ///< all that there is afterwards
    int error = 0;                      ///< what the removal fails with, or 0
    std::string item = "item";
    Strike meanwhile = {}; ///< what strikes before each call of the removal
};

inline void PrintTo(const RemovalSituation& situation, std::ostream* stream) {
    *stream << situation.name;
}

/// The paths of all that is in `folder`, relative to it. Locked folders are opened for that.
inline std::vector<std::string> allIn(const std::string& folder) {
    using namespace std::filesystem;
    std::vector<std::string> paths;
    const auto options = directory_options::skip_permission_denied;
    ::chmod(folder.c_str(), 0700);
    for (const auto& entry : recursive_directory_iterator(folder, options)) {
        if (entry.symlink_status().type() == file_type::directory) {
            ::chmod(entry.path().c_str(), 0700);
        }
        paths.push_back(entry.path().string().substr(folder.size() + 1));
    }
    return paths;
}

/// Removes the situation's item, once the situation is made in `scratch`.
inline void expectAsTold(const RemovalSituation& situation, const ScratchFolder& scratch) {
    std::error_code error;
    {
        const SystemCallHook hook([&](const SystemCallHook::Call& call) {
            return situation.meanwhile ? situation.meanwhile(scratch, call) : 0;
        });
        const bool isRelative = situation.item.starts_with("./");
        error = FileManager::removeItem(isRelative ? situation.item : scratch / situation.item);
    }
    EXPECT_EQ(error.value(), situation.error) << error.message();
    EXPECT_THAT(allIn(scratch.path()), testing::UnorderedElementsAreArray(situation.left));
}

inline std::string nameOf(const testing::TestParamInfo<RemovalSituation>& instance) {
    return instance.param.name;
}

// The tables.

extern const std::vector<RemovalSituation> situationsOfPermissions;
extern const std::vector<RemovalSituation> situationsOfLinks;
extern const std::vector<RemovalSituation> situationsOfKinds;
extern const std::vector<RemovalSituation> situationsOfNames;
extern const std::vector<RemovalSituation> situationsOfPaths;
extern const std::vector<RemovalSituation> situationsOfChanges;

} // namespace drossbin::test
