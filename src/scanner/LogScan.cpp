#include "scanner/DiskScanner.h"

namespace drossbin {

namespace {

constexpr auto category = DiskCategory::logFiles;
constexpr std::int64_t smallestSize = 1'000'001;
constexpr const char* safetyNote = "Log files — safe to clear. Apps create new logs automatically.";

} // namespace

std::vector<DiskItem> DiskScanner::scanLogs(const std::string& home) {
    struct Folder {
        const char* name;
        std::string path;
    };
    const std::array<Folder, 2> folders{
        {{"User Logs", home + "/Library/Logs"}, {"System Logs", "/var/log"}}};
    std::vector<DiskItem> items;
    for (const auto& [name, path] : folders) {
        const auto size = directorySize(path);
        if (!size || *size < smallestSize) {
            continue;
        }
        items.push_back({.name = name,
                         .path = path,
                         .size = *size,
                         .category = category,
                         .risk = RiskLevel::safe,
                         .lastAccessed = modificationDate(path),
                         .sfSymbol = std::string(icon(category)),
                         .safetyNote = safetyNote});
    }
    return items;
}

} // namespace drossbin
