#include "platform/TreeSize.h"

#include "platform/CheckedSum.h"
#include "platform/FileManager.h"
#include "platform/Measurement.h"
#include "platform/OpenFolder.h"
#include "platform/TreeWalk.h"
#include "platform/WalkCrew.h"

#include <fcntl.h>
#include <utility>

namespace drossbin {

std::optional<std::int64_t> treeSize(const std::string& path, WalkCrew* crew) {
    FileDescriptor root = openFolderPatiently(AT_FDCWD, path.c_str(), LastLink::followed);
    struct stat status {};
    if (!root.isOpen() || ::fstat(root.get(), &status) != 0) {
        return std::nullopt;
    }
    Measurement measurement(crew);
    TreeWalk walk(measurement);
    const std::int64_t own = walk.sizeBelow({std::move(root), OpenFolder::identityFrom(status)});
    return checkedSum(own, walk.sizeGivenAway());
}

std::optional<std::int64_t> FileManager::sizeOfFolderContents(const std::string& path) {
    return treeSize(path, WalkCrew::ofThisProcess());
}

} // namespace drossbin
