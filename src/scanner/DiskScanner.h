#pragma once

#include "model/DiskItem.h"
#include "platform/basics/Date.h"

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace drossbin {

/// Finds what can be deleted below the home folder and in the system's log folder. Stateless;
/// everything blocks and may run on any thread. Nothing fails: what cannot be read is left out.
class DiskScanner {
  public:
    /// Called on the scanning thread with the share of the scan reached (0 to 1), the status line
    /// and the bytes found by the steps that are done. Must return quickly.
    using Progress =
        std::function<void(double fraction, const std::string& text, std::int64_t bytesFound)>;

    /// Entries that are never offered as safe, compared whole and with letter case.
    static constexpr std::array<std::string_view, 3> protectedNames{"com.apple.Keychain",
                                                                    "Keychains", "Preferences"};

    /// Runs the five category scans one after another, a report before each and one at the end,
    /// and returns all items, largest first, equal sizes in the order found. Where the home folder
    /// is unknown the reports are made, and nothing is looked at.
    static std::vector<DiskItem> scan(const Progress& progress);

    /// The bytes of a file (of a link itself, where it leads to no folder) or of everything below
    /// a folder; absent when nothing is there or it cannot be measured.
    static std::optional<std::int64_t> directorySize(const std::string& path);

    // The category scans, in the order in which `scan` runs them.

    static std::vector<DiskItem> scanProgramCaches(const std::string& home);
    static std::vector<DiskItem> scanPackageCaches(const std::string& home);
    static std::vector<DiskItem> scanAppData(const std::string& home);
    static std::vector<DiskItem> scanLogs(const std::string& home);
    static std::vector<DiskItem> scanOldDownloads(const std::string& downloads,
                                                  Date present = now());

    /// The risk of deleting an application's support data, judged by the entry's name alone.
    static RiskLevel classifyAppDataRisk(std::string_view name);

  private:
    /// Adds `item`, which lacks only its size, date and symbol, where what lies at its path
    /// measures `smallestSize` bytes or more. Where the date cannot be read the item has none.
    static void addMeasured(std::vector<DiskItem>& items, DiskItem item, std::int64_t smallestSize);
};

} // namespace drossbin
