#include "RandomTree.h"

#include "platform/FileManager.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <rapidcheck/gtest.h>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace drossbin {
namespace {

namespace fs = std::filesystem;
using test::ScratchFolder;
using test::TreeStep;

/// Plain and slow: what every walk must come to.
std::int64_t plainSize(const std::string& folder) {
    std::int64_t size = 0;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        struct stat status {};
        RC_ASSERT(::lstat(entry.path().c_str(), &status) == 0);
        size += status.st_size;
    }
    return size;
}

RC_GTEST_PROP(RandomTree, is_measured_as_a_plain_walk_measures_it,
              (const std::vector<TreeStep>& steps)) {
    const ScratchFolder scratch;
    test::makeTree(scratch.folder("item"), steps);
    RC_ASSERT(FileManager::sizeOfFolderContents(scratch / "item") == plainSize(scratch / "item"));
}

// A folder of the same entries, made in the same way beside it, stays as it is.
RC_GTEST_PROP(RandomTree, is_removed_whole_and_its_twin_stays_whole,
              (const std::vector<TreeStep>& steps)) {
    const ScratchFolder scratch;
    test::makeTree(scratch.folder("item"), steps);
    test::makeTree(scratch.folder("twin"), steps);
    fs::create_directory_symlink(scratch / "twin", scratch / "item/to twin");
    const std::int64_t size = plainSize(scratch / "twin");
    RC_ASSERT(FileManager::removeItem(scratch / "item") == std::error_code());
    RC_ASSERT(!FileManager::attributesOfItem(scratch / "item"));
    RC_ASSERT(plainSize(scratch / "twin") == size);
}

} // namespace
} // namespace drossbin
