#include "scanner/MockData.h"

#include <algorithm>
#include <array>
#include <random>
#include <span>
#include <string_view>

namespace drossbin {

namespace {

using std::chrono::seconds;

struct Sample {
    const char* name;
    std::int64_t size;
    RiskLevel risk;
};

struct Group {
    DiskCategory category;
    std::string_view folder;
    const char* safetyNote; ///< null for none
    seconds youngest;
    seconds oldest;
    std::span<const Sample> samples;
};

using enum RiskLevel;

constexpr auto programCaches = std::to_array<Sample>({
    {"Adobe Premiere Pro", 38'200'000'000, safe},
    {"Adobe After Effects", 24'600'000'000, safe},
    {"DaVinci Resolve", 18'400'000'000, safe},
    {"Final Cut Pro", 14'800'000'000, safe},
    {"Logic Pro", 11'200'000'000, safe},
    {"Adobe Photoshop", 7'400'000'000, safe},
    {"Adobe Lightroom", 4'600'000'000, safe},
    {"Google Chrome", 3'200'000'000, safe},
    {"Spotify", 1'800'000'000, safe},
    {"Safari", 1'400'000'000, safe},
    {"Slack", 940'000'000, safe},
    {"Discord", 620'000'000, safe},
});
constexpr auto packageCaches = std::to_array<Sample>({
    {"Xcode DerivedData", 12'400'000'000, safe},
    {"npm cache", 3'200'000'000, safe},
    {"Homebrew", 1'800'000'000, safe},
    {"CocoaPods", 640'000'000, safe},
    {"pip cache", 380'000'000, safe},
});
constexpr auto appData = std::to_array<Sample>({
    {"Docker Desktop", 18'600'000'000, caution},
    {"iCloud Drive cache", 8'400'000'000, caution},
    {"Figma", 4'200'000'000, caution},
    {"Notion", 3'100'000'000, safe},
    {"Visual Studio Code", 2'800'000'000, safe},
    {"Arc Browser", 2'400'000'000, safe},
    {"1Password", 1'200'000'000, critical},
    {"Apple Music", 1'100'000'000, safe},
    {"WhatsApp", 1'000'000'000, caution},
});
constexpr auto logFiles = std::to_array<Sample>({
    {"User Logs", 2'100'000'000, safe},
    {"System Logs", 1'100'000'000, safe},
});
constexpr auto oldDownloads = std::to_array<Sample>({
    {"macOS Sequoia Installer.app", 6'200'000'000, caution},
    {"Final Cut Pro Trial.dmg", 980'000'000, caution},
    {"project-assets-v3.zip", 640'000'000, caution},
    {"Keynote presentation.key", 420'000'000, caution},
    {"screen-recording-2024.mov", 360'000'000, caution},
});

constexpr auto groups = std::to_array<Group>({
    {DiskCategory::programCaches, "/Users/you/Library/Caches/",
     "Cache file — the app will rebuild this automatically.", seconds(3'600), seconds(2'592'000),
     programCaches},
    {DiskCategory::packageCaches, "/Users/you/Library/Developer/",
     "Developer cache — safe to clear.", seconds(86'400), seconds(604'800), packageCaches},
    {DiskCategory::appData, "/Users/you/Library/Application Support/", nullptr, seconds(3'600),
     seconds(1'209'600), appData},
    {DiskCategory::logFiles, "/var/log/", "Log files — safe to clear.", seconds(3'600),
     seconds(3'600), logFiles},
    {DiskCategory::oldDownloads, "/Users/you/Downloads/", "Downloaded over 30 days ago.",
     seconds(2'592'000), seconds(7'776'000), oldDownloads},
});

std::string path(const Group& group, std::string name) {
    if (group.category == DiskCategory::programCaches) {
        std::ranges::replace(name, ' ', '.');
    }
    return std::string(group.folder) + name;
}

} // namespace

std::vector<DiskItem> MockData::generate() {
    std::mt19937_64 random(std::random_device{}());
    const Date present = now();
    std::vector<DiskItem> items;
    for (const Group& group : groups) {
        std::uniform_int_distribution age(group.youngest.count(), group.oldest.count());
        for (const Sample& sample : group.samples) {
            items.push_back({.name = sample.name,
                             .path = path(group, sample.name),
                             .size = sample.size,
                             .category = group.category,
                             .risk = sample.risk,
                             .lastAccessed = present - seconds(age(random)),
                             .sfSymbol = std::string(icon(group.category)),
                             .safetyNote = group.safetyNote != nullptr
                                               ? std::optional<std::string>(group.safetyNote)
                                               : std::nullopt});
        }
    }
    std::ranges::stable_sort(items, std::ranges::greater{}, &DiskItem::size);
    return items;
}

} // namespace drossbin
