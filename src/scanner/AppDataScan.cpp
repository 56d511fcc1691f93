#include "platform/FileManager.h"
#include "scanner/DiskScanner.h"

#include <algorithm>

namespace drossbin {

namespace {

constexpr const char* location = "/Library/Application Support/";
constexpr std::int64_t smallestSize = 5'000'001;
constexpr const char* safetyNote = "App support data — safe to clear; the app will recreate it.";

constexpr std::array<std::string_view, 4> criticalNames{"Claude", "1Password", "Keychain",
                                                        "Bitwarden"};
constexpr std::array<std::string_view, 8> safeNames{
    "Homebrew", "Yarn", "pip", "ms-playwright", "go-build", "electron", "Spotify", "Slack"};

} // namespace

std::vector<DiskItem> DiskScanner::scanAppData(const std::string& home) {
    const std::string folder = home + location;
    std::vector<DiskItem> items;
    for (const std::string& name :
         FileManager::contentsOfDirectory(folder).value_or(std::vector<std::string>())) {
        if (std::ranges::count(protectedNames, name) > 0) {
            continue;
        }
        const RiskLevel risk = classifyAppDataRisk(name);
        addMeasured(items,
                    {.name = name,
                     .path = folder + name,
                     .category = DiskCategory::appData,
                     .risk = risk,
                     .safetyNote = risk == RiskLevel::safe ? std::optional<std::string>(safetyNote)
                                                           : std::nullopt},
                    smallestSize);
    }
    return items;
}

RiskLevel DiskScanner::classifyAppDataRisk(std::string_view name) {
    const auto isInName = [name](std::string_view fragment) {
        return name.find(fragment) != std::string_view::npos;
    };
    if (std::ranges::any_of(criticalNames, isInName)) {
        return RiskLevel::critical;
    }
    return std::ranges::any_of(safeNames, isInName) ? RiskLevel::safe : RiskLevel::caution;
}

} // namespace drossbin
