#include "platform/measuring/TreeSize.h"

#include "platform/basics/CheckedSum.h"
#include "platform/folders/OpenFolder.h"
#include "platform/measuring/MeasuringPool.h"
#include "platform/measuring/TreeWalk.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <utility>

namespace drossbin {

namespace {

std::optional<std::int64_t> sizeBelow(const std::string& path, MeasuringPool* pool) {
    FileDescriptor root = openFolder(AT_FDCWD, path.c_str(), LastLink::followed);
    struct stat status {};
    if (!root.isOpen() || ::fstat(root.get(), &status) != 0) {
        return std::nullopt;
    }
    const std::int64_t own =
        TreeWalk(pool).sizeBelow({std::move(root), FolderIdentity::from(status)});
    return pool != nullptr ? checkedSum(own, pool->finish()) : own;
}

} // namespace

std::optional<std::int64_t> treeSize(const std::string& path, MeasuringPool* pool) {
    if (pool == nullptr) {
        return sizeBelow(path, nullptr);
    }
    const auto turn = pool->begin();
    const auto size = sizeBelow(path, pool);
    return pool->isGivenUp() ? sizeBelow(path, nullptr) : size;
}

} // namespace drossbin
