#include "platform/FileManager.h"
#include "scanner/DiskScanner.h"

#include <algorithm>

namespace drossbin {

namespace {

constexpr const char* location = "/Library/Caches/";
constexpr std::int64_t smallestSize = 1'000'001;
constexpr const char* safetyNote = "Cache file — the app will rebuild this automatically.";

} // namespace

std::vector<DiskItem> DiskScanner::scanProgramCaches(const std::string& home) {
    const std::string folder = home + location;
    std::vector<DiskItem> items;
    for (const std::string& name :
         FileManager::contentsOfDirectory(folder).value_or(std::vector<std::string>())) {
        const bool isProtected = std::ranges::count(protectedNames, name) > 0;
        addMeasured(
            items,
            {.name = name,
             .path = folder + name,
             .category = DiskCategory::programCaches,
             .risk = isProtected ? RiskLevel::critical : RiskLevel::safe,
             .safetyNote = isProtected ? std::nullopt : std::optional<std::string>(safetyNote)},
            smallestSize);
    }
    return items;
}

} // namespace drossbin
