#pragma once

#include "model/ItemTexts.h"
#include "model/ScanResult.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace drossbin {

/// Which list of items a place belongs to: selecting keeps it, a scan makes another.
struct ListIdentity {
    std::size_t count = 0;
    Uuid first{};

    static ListIdentity of(const std::vector<DiskItem>& items);
    friend bool operator==(const ListIdentity&, const ListIdentity&) = default;
};

/// What the filter lets through of one category.
struct CategorySurvey {
    std::size_t count = 0;
    std::int64_t size = 0;
    std::size_t selectedCount = 0;
    std::int64_t selectedSize = 0;
};

/// Everything that the screens tell about the items, gathered in one pass. Items are named by
/// their place in the list, which `list` identifies.
struct ItemSurvey {
    ListIdentity list;
    std::int64_t totalSize = 0;
    std::vector<std::size_t> selected; ///< in list order, hidden by the filter or not
    std::int64_t selectedSize = 0;
    bool hasBrowserData = false; ///< among the selected
    std::array<CategorySurvey, allDiskCategories.size()> categories{};
    std::vector<std::size_t> rows;     ///< of the category shown, largest first
    std::vector<bool> areRowsSelected; ///< one for each row

    [[nodiscard]] const CategorySurvey& of(DiskCategory category) const {
        return categories.at(static_cast<std::size_t>(category));
    }
};

/// Takes surveys, and remembers of the items what a survey needs of each. The items themselves lie
/// too far apart in memory to be read at every key stroke.
class ItemSurveyor {
  public:
    /// Sums that do not fit 64 bits stop the program.
    ItemSurvey survey(const ScanResult& result, std::optional<DiskCategory> shown);

    /// To be called when items were selected or deselected since the last survey. That there is
    /// another list, or another search text, is seen without.
    void noteSelection() { m_isSelectionKnown = false; }

  private:
    enum class BrowserData : std::uint8_t { unknown, absent, present };

    struct Facts {
        std::int64_t size;
        DiskCategory category;
        bool isSelected;
        bool passes; ///< the filter
        BrowserData browserData;
    };

    void remember(const ScanResult& result);
    void rememberList(const std::vector<DiskItem>& items);
    void rememberSelection(const std::vector<DiskItem>& items);
    void filter(const std::string& searchText);
    static void count(const Facts& facts, CategorySurvey& survey);
    void countSelected(const DiskItem& item, std::size_t place, ItemSurvey& survey);
    void finishRows(ItemSurvey& survey) const;
    bool isBrowserData(const DiskItem& item, std::size_t place);

    std::optional<ListIdentity> m_list;
    std::vector<Facts> m_facts; ///< of each item of that list
    std::optional<ItemTexts> m_texts;
    std::optional<std::string> m_searchText; ///< by which they were filtered
    bool m_isSelectionKnown = false;
};

} // namespace drossbin
