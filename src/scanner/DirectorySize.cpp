#include "platform/FileManager.h"
#include "scanner/DiskScanner.h"

namespace drossbin {

std::optional<std::int64_t> DiskScanner::directorySize(const std::string& path) {
    // A folder is what is measured most: it is opened without asking first whether it is one.
    if (const auto contents = FileManager::sizeOfFolderContents(path)) {
        return contents;
    }
    if (FileManager::existence(path) != FileManager::Existence::file) {
        return std::nullopt;
    }
    const auto attributes = FileManager::attributesOfItem(path);
    return attributes ? std::optional(attributes->size) : std::nullopt;
}

} // namespace drossbin
