#include "scanner/DiskScanner.h"

namespace drossbin {

namespace {

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
        addMeasured(items,
                    {.name = name,
                     .path = path,
                     .category = DiskCategory::logFiles,
                     .risk = RiskLevel::safe,
                     .safetyNote = safetyNote},
                    smallestSize);
    }
    return items;
}

} // namespace drossbin
