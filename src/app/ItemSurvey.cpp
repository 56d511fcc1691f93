#include "app/ItemSurvey.h"

#include "app/BrowserWords.h"
#include "model/ItemFilter.h"
#include "platform/basics/CheckedSum.h"

#include <algorithm>
#include <utility>

namespace drossbin {

namespace {

void add(const DiskItem& item, CategorySurvey& survey) {
    ++survey.count;
    survey.size = checkedSum(survey.size, item.size);
    if (item.isSelected) {
        ++survey.selectedCount;
        survey.selectedSize = checkedSum(survey.selectedSize, item.size);
    }
}

void addSelected(const DiskItem& item, ItemSurvey& survey) {
    ++survey.selectedCount;
    survey.selectedSize = checkedSum(survey.selectedSize, item.size);
    survey.hasBrowserData = survey.hasBrowserData || containsBrowserWord(item.name, item.path);
}

/// Sorts first and copies then, because the items are large.
std::vector<DiskItem> largestFirst(std::vector<const DiskItem*> items) {
    std::ranges::stable_sort(items, std::ranges::greater{}, &DiskItem::size);
    std::vector<DiskItem> sorted;
    sorted.reserve(items.size());
    for (const DiskItem* const item : items) {
        sorted.push_back(*item);
    }
    return sorted;
}

} // namespace

ItemSurvey ItemSurvey::of(const ScanResult& result, std::optional<DiskCategory> shown) {
    const ItemFilter filter(result.searchText.get());
    ItemSurvey survey;
    std::vector<const DiskItem*> rows;
    for (const DiskItem& item : result.items.get()) {
        ++survey.count;
        survey.totalSize = checkedSum(survey.totalSize, item.size);
        if (item.isSelected) {
            addSelected(item, survey);
        }
        if (filter.passes(item)) {
            add(item, survey.categories.at(static_cast<std::size_t>(item.category)));
            if (item.category == shown) {
                rows.push_back(&item);
            }
        }
    }
    survey.rows = largestFirst(std::move(rows));
    return survey;
}

} // namespace drossbin
