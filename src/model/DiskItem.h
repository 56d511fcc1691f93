#pragma once

#include "model/DiskCategory.h"
#include "model/RiskLevel.h"
#include "model/Uuid.h"
#include "platform/basics/Date.h"

#include <cstdint>
#include <optional>
#include <string>

namespace drossbin {

/// One thing on disk that may be deleted. A plain value: an item is found again by its `id`, and
/// only `isSelected` changes after it is made. `name` and `path` are raw bytes.
struct DiskItem {
    Uuid id = Uuid::random();
    std::string name{};
    std::string path{};
    std::int64_t size = 0; ///< bytes, as measured by the scan
    DiskCategory category{};
    RiskLevel risk{};
    std::optional<Date> lastAccessed{};
    std::string sfSymbol{};
    std::optional<std::string> safetyNote{};
    bool isSelected = false;

    /// The date as a short phrase relative to `reference` in the user's locale; "—" without one.
    [[nodiscard]] std::string formattedDate(Date reference = now()) const;

    /// The size in file style in the user's locale.
    [[nodiscard]] std::string formattedSize() const;
};

} // namespace drossbin
