#include "model/ScanResult.h"

#include "model/ItemFilter.h"
#include "platform/basics/CheckedSum.h"

#include <algorithm>

namespace drossbin {

namespace {

/// Calls `use` with each of the category's items that the search text leaves, without a copy.
template <class Use>
void forEachOf(const ScanResult& result, DiskCategory category, Use use) {
    const ItemFilter filter(result.searchText.get());
    for (const DiskItem& item : result.items.get()) {
        if (item.category == category && filter.passes(item)) {
            use(item);
        }
    }
}

} // namespace

std::int64_t ScanResult::totalSize() const {
    std::int64_t total = 0;
    for (const DiskItem& item : items.get()) {
        total = checkedSum(total, item.size);
    }
    return total;
}

std::int64_t ScanResult::selectedSize() const {
    std::int64_t total = 0;
    for (const DiskItem& item : items.get()) {
        total = item.isSelected ? checkedSum(total, item.size) : total;
    }
    return total;
}

std::size_t ScanResult::selectedCount() const {
    return static_cast<std::size_t>(std::ranges::count(items.get(), true, &DiskItem::isSelected));
}

std::vector<DiskItem> ScanResult::itemsFor(DiskCategory category) const {
    std::vector<DiskItem> found;
    forEachOf(*this, category, [&found](const DiskItem& item) { found.push_back(item); });
    return found;
}

bool ScanResult::hasItemsFor(DiskCategory category) const {
    bool hasSome = false;
    forEachOf(*this, category, [&hasSome](const DiskItem&) { hasSome = true; });
    return hasSome;
}

std::int64_t ScanResult::categorySize(DiskCategory category) const {
    std::int64_t total = 0;
    forEachOf(*this, category,
              [&total](const DiskItem& item) { total = checkedSum(total, item.size); });
    return total;
}

void ScanResult::toggleSelectionFor(const DiskItem& item) {
    if (item.risk == RiskLevel::critical) {
        return;
    }
    const auto found = std::ranges::find(items.get(), item.id, &DiskItem::id);
    if (found == items.get().end()) {
        return;
    }
    const auto index = static_cast<std::size_t>(found - items.get().begin());
    items.modify([index](auto& list) { list[index].isSelected = !list[index].isSelected; });
}

void ScanResult::selectAllSafe() {
    setSelected(true, [](const DiskItem& item) { return item.risk == RiskLevel::safe; });
}

void ScanResult::selectAllIn(DiskCategory category) {
    setSelected(true, [category](const DiskItem& item) {
        return item.category == category && item.risk != RiskLevel::critical;
    });
}

void ScanResult::deselectAllIn(DiskCategory category) {
    setSelected(false, [category](const DiskItem& item) { return item.category == category; });
}

void ScanResult::deselectAll() {
    setSelected(false, [](const DiskItem&) { return true; });
}

template <class Applies>
void ScanResult::setSelected(bool isSelected, Applies applies) {
    const std::size_t count = items.get().size();
    for (std::size_t index = 0; index < count; ++index) {
        if (applies(items.get()[index])) {
            items.modify([=](auto& list) { list[index].isSelected = isSelected; });
        }
    }
}

} // namespace drossbin
