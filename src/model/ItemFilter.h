#pragma once

#include "model/DiskItem.h"
#include "platform/search/CaseInsensitiveSearch.h"

#include <string_view>

namespace drossbin {

/// The search text as a test of items, prepared once for many of them.
class ItemFilter {
  public:
    explicit ItemFilter(std::string_view searchText)
        : m_passesAll(searchText.empty())
        , m_search(searchText) {}

    /// Whether the item's name or path contains the text; an empty text lets every item through.
    [[nodiscard]] bool passes(const DiskItem& item) const {
        return m_passesAll || m_search.isFoundIn(item.name) || m_search.isFoundIn(item.path);
    }

  private:
    bool m_passesAll;
    CaseInsensitiveSearch m_search;
};

} // namespace drossbin
