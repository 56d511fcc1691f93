#include "platform/TreeSize.h"

#include "platform/CheckedSum.h"
#include "platform/FileManager.h"
#include "platform/Measurement.h"
#include "platform/OpenFolder.h"
#include "platform/TreeWalk.h"
#include "platform/WalkCrew.h"

#include <fcntl.h>
#include <mutex>
#include <shared_mutex>
#include <utility>

namespace drossbin {

namespace {

std::optional<std::int64_t> sizeBelow(const std::string& path, Measurement& measurement) {
    FileDescriptor root = measurement.open(AT_FDCWD, path.c_str(), LastLink::followed);
    struct stat status {};
    if (!root.isOpen() || ::fstat(root.get(), &status) != 0) {
        return std::nullopt;
    }
    TreeWalk walk(measurement);
    const std::int64_t own = walk.sizeBelow({std::move(root), FolderIdentity::from(status)});
    return checkedSum(own, walk.sizeGivenAway());
}

std::optional<std::int64_t> sizeBelow(const std::string& path) {
    Measurement alone(nullptr);
    return sizeBelow(path, alone);
}

} // namespace

std::optional<std::int64_t> treeSize(const std::string& path, WalkCrew* crew) {
    if (crew == nullptr) {
        return sizeBelow(path);
    }
    {
        const std::shared_lock besideOthers(crew->descriptors());
        Measurement together(crew);
        const auto size = sizeBelow(path, together);
        if (!together.isGivenUp()) {
            return size;
        }
    }
    const std::unique_lock whileOthersWait(crew->descriptors());
    return sizeBelow(path);
}

std::optional<std::int64_t> FileManager::sizeOfFolderContents(const std::string& path) {
    return treeSize(path, WalkCrew::ofThisProcess());
}

} // namespace drossbin
