#include "scanner/DiskScanner.h"

namespace drossbin {

namespace {

struct Location {
    const char* suffix; ///< below the home folder
    const char* name;
    const char* safetyNote;
};

constexpr std::int64_t smallestSize = 1;
constexpr std::array<Location, 12> locations{{
    {"/.npm", "npm cache", "npm cache — safe to clear with `npm cache clean`."},
    {"/.cache", "User cache (~/.cache)", "General user cache — usually safe."},
    {"/.yarn", "Yarn cache", "Yarn cache — safe to clear."},
    {"/Library/pnpm", "pnpm cache", "pnpm store — safe to clear."},
    {"/Library/Caches/Homebrew", "Homebrew cache", "Downloaded bottles — safe to clear."},
    {"/Library/Caches/pip", "pip cache", "pip download cache — safe to clear."},
    {"/.cargo/registry", "Cargo/Rust cache", "Rust crate cache — safe to clear."},
    {"/.gradle/caches", "Gradle cache", "Gradle build cache — safe to clear."},
    {"/.cocoapods", "CocoaPods cache", "CocoaPods spec cache — safe to clear."},
    {"/Library/Caches/com.docker.docker", "Docker cache", "Docker image layer cache."},
    {"/Library/Developer/Xcode/DerivedData", "Xcode DerivedData",
     "Xcode build cache — safe to clear. Will rebuild on next build."},
    {"/Library/Developer/CoreSimulator/Caches", "Simulator cache",
     "iOS Simulator cache — safe to clear."},
}};

} // namespace

std::vector<DiskItem> DiskScanner::scanPackageCaches(const std::string& home) {
    std::vector<DiskItem> items;
    for (const Location& location : locations) {
        addMeasured(items,
                    {.name = location.name,
                     .path = home + location.suffix,
                     .category = DiskCategory::packageCaches,
                     .risk = RiskLevel::safe,
                     .safetyNote = location.safetyNote},
                    smallestSize);
    }
    return items;
}

} // namespace drossbin
