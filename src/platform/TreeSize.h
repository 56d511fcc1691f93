#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace drossbin {

class WalkCrew;

/// The sum that FileManager::sizeOfFolderContents gives, with the help of `crew`, or of nobody
/// where that is null.
std::optional<std::int64_t> treeSize(const std::string& path, WalkCrew* crew);

} // namespace drossbin
