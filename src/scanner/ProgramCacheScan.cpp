#include "platform/FileManager.h"
#include "scanner/DiskScanner.h"

#include <algorithm>

namespace drossbin {

namespace {

constexpr auto category = DiskCategory::programCaches;
constexpr const char* location = "/Library/Caches/";
constexpr std::int64_t smallestSize = 1'000'001;
constexpr const char* safetyNote = "Cache file — the app will rebuild this automatically.";

} // namespace

std::vector<DiskItem> DiskScanner::scanProgramCaches(const std::string& home) {
    const std::string folder = home + location;
    std::vector<DiskItem> items;
    for (const std::string& name :
         FileManager::contentsOfDirectory(folder).value_or(std::vector<std::string>())) {
        const std::string path = folder + name;
        const auto size = directorySize(path);
        if (!size || *size < smallestSize) {
            continue;
        }
        const bool isProtected = std::ranges::count(protectedNames, name) > 0;
        items.push_back(
            {.name = name,
             .path = path,
             .size = *size,
             .category = category,
             .risk = isProtected ? RiskLevel::critical : RiskLevel::safe,
             .lastAccessed = modificationDate(path),
             .sfSymbol = std::string(icon(category)),
             .safetyNote = isProtected ? std::nullopt : std::optional<std::string>(safetyNote)});
    }
    return items;
}

} // namespace drossbin
