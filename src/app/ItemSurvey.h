#pragma once

#include "model/ScanResult.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace drossbin {

/// What the filter lets through of one category.
struct CategorySurvey {
    std::size_t count = 0;
    std::int64_t size = 0;
    std::size_t selectedCount = 0;
    std::int64_t selectedSize = 0;
};

/// What the results' screens tell about the items, gathered in one pass.
struct ItemSurvey {
    std::size_t count = 0; ///< of all items, whatever the filter hides, as are the next four
    std::int64_t totalSize = 0;
    std::size_t selectedCount = 0;
    std::int64_t selectedSize = 0;
    bool hasBrowserData = false; ///< among the selected
    std::array<CategorySurvey, allDiskCategories.size()> categories{};
    std::vector<DiskItem> rows; ///< of the category shown, largest first

    /// Sums that do not fit 64 bits stop the program.
    static ItemSurvey of(const ScanResult& result, std::optional<DiskCategory> shown);

    [[nodiscard]] const CategorySurvey& of(DiskCategory category) const {
        return categories.at(static_cast<std::size_t>(category));
    }
};

} // namespace drossbin
