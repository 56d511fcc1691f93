#include "scanner/DiskScanner.h"

#include "platform/FileManager.h"
#include "platform/basics/CheckedSum.h"

#include <algorithm>
#include <iterator>

namespace drossbin {

namespace {

struct Step {
    double fraction;
    const char* text;
    std::vector<DiskItem> (*find)(const std::string& home);
};

constexpr std::array<Step, 5> steps{{
    {0.2, "Scanning program caches...", DiskScanner::scanProgramCaches},
    {0.4, "Scanning package caches...", DiskScanner::scanPackageCaches},
    {0.6, "Scanning app data...", DiskScanner::scanAppData},
    {0.8, "Scanning logs...", DiskScanner::scanLogs},
    {1.0, "Scanning old downloads...",
     [](const std::string& home) { return DiskScanner::scanOldDownloads(home + "/Downloads"); }},
}};

} // namespace

std::vector<DiskItem> DiskScanner::scan(const Progress& progress) {
    // Without a home folder every step finds nothing: its locations would become the root's.
    const auto home = FileManager::homeDirectoryForCurrentUser();
    std::vector<DiskItem> all;
    std::int64_t bytesFound = 0;
    for (const Step& step : steps) {
        progress(step.fraction, step.text, bytesFound);
        std::vector<DiskItem> found = home ? step.find(*home) : std::vector<DiskItem>();
        for (const DiskItem& item : found) {
            bytesFound = checkedSum(bytesFound, item.size);
        }
        std::ranges::move(found, std::back_inserter(all));
    }
    progress(1.0, "Scan complete", bytesFound);
    std::ranges::stable_sort(all, std::ranges::greater{}, &DiskItem::size);
    return all;
}

void DiskScanner::addMeasured(std::vector<DiskItem>& items, DiskItem item,
                              std::int64_t smallestSize) {
    const auto size = directorySize(item.path);
    if (!size || *size < smallestSize) {
        return;
    }
    item.size = *size;
    item.sfSymbol = icon(item.category);
    if (const auto attributes = FileManager::attributesOfItem(item.path)) {
        item.lastAccessed = attributes->modificationDate;
    }
    items.push_back(std::move(item));
}

} // namespace drossbin
