#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace drossbin {

/// Which scan found an item, and the heading it is shown under.
enum class DiskCategory { programCaches, packageCaches, appData, logFiles, oldDownloads };

/// Every category in the order in which all screens and the scan go through them.
inline constexpr std::array allDiskCategories{DiskCategory::programCaches,
                                              DiskCategory::packageCaches, DiskCategory::appData,
                                              DiskCategory::logFiles, DiskCategory::oldDownloads};

/// The category's identity, which is also its display name ("Program Caches").
std::string_view rawValue(DiskCategory category);

/// The category whose raw value is exactly `rawValue`, letter case included.
std::optional<DiskCategory> diskCategoryFrom(std::string_view rawValue);

/// The SF Symbols name of the category's symbol.
std::string_view icon(DiskCategory category);

/// One line that says what the category holds.
std::string_view subtitle(DiskCategory category);

} // namespace drossbin
