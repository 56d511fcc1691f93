#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace drossbin {

class MeasuringPool;

/// The sum that FileManager::sizeOfFolderContents gives, with the help of `pool`, or of nobody
/// where that is null. One measurement has a pool at a time; a second caller waits.
std::optional<std::int64_t> treeSize(const std::string& path, MeasuringPool* pool);

} // namespace drossbin
