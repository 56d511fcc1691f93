#include "platform/FileManager.h"
#include "platform/words/Calendar.h"
#include "platform/words/RelativeDateTimeFormatter.h"
#include "scanner/DiskScanner.h"

namespace drossbin {

namespace {

constexpr auto category = DiskCategory::oldDownloads;
constexpr int daysUntilOld = 30;
constexpr std::int64_t smallestSize = 100'001;

std::string safetyNote(Date modificationDate, Date present) {
    return "Downloaded " +
           RelativeDateTimeFormatter::localizedString(modificationDate, present,
                                                      RelativeDateTimeFormatter::UnitsStyle::full) +
           ". Review before deleting.";
}

} // namespace

std::vector<DiskItem> DiskScanner::scanOldDownloads(const std::string& downloads, Date present) {
    const Date cutoff = Calendar::dateByAddingDays(-daysUntilOld, present).value_or(present);
    const std::string folder = downloads + "/";
    std::vector<DiskItem> items;
    for (const std::string& name :
         FileManager::contentsOfDirectory(folder).value_or(std::vector<std::string>())) {
        const std::string path = folder + name;
        // A folder counts with its own entry, not its contents: what lies in it may be in use,
        // however old the folder.
        const auto attributes = FileManager::attributesOfItem(path);
        if (!attributes || attributes->modificationDate >= cutoff ||
            attributes->size < smallestSize) {
            continue;
        }
        items.push_back({.name = name,
                         .path = path,
                         .size = attributes->size,
                         .category = category,
                         .risk = RiskLevel::caution,
                         .lastAccessed = attributes->modificationDate,
                         .sfSymbol = std::string(icon(category)),
                         .safetyNote = safetyNote(attributes->modificationDate, present)});
    }
    return items;
}

} // namespace drossbin
