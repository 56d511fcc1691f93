#pragma once

#include "app/ItemSurvey.h"

#include <cstddef>
#include <vector>

namespace drossbin {

/// Rows of a list by the places of their items in the session. Between a write of `items` and the
/// refresh that follows it, the places may belong to a list that is gone: then a row has no item.
class ItemRows {
  public:
    explicit ItemRows(const ScanResult& result)
        : m_result(result) {}

    [[nodiscard]] int count() const { return static_cast<int>(m_places.size()); }

    /// The row's item, or nullptr where there is none. Holds until the next write of `items`.
    [[nodiscard]] const DiskItem* at(int row) const {
        const std::vector<DiskItem>& items = m_result.items;
        const bool isCurrent = ListIdentity::of(items) == m_list;
        return isCurrent && row >= 0 && row < count()
                   ? &items[m_places[static_cast<std::size_t>(row)]]
                   : nullptr;
    }

    [[nodiscard]] bool are(const ListIdentity& list, const std::vector<std::size_t>& places) const {
        return list == m_list && places == m_places;
    }

    void replace(const ListIdentity& list, std::vector<std::size_t> places) {
        m_list = list;
        m_places = std::move(places);
    }

  private:
    const ScanResult& m_result;
    ListIdentity m_list;
    std::vector<std::size_t> m_places;
};

} // namespace drossbin
