#include "app/ItemSurvey.h"

#include "app/BrowserWords.h"
#include "model/ItemFilter.h"
#include "platform/CheckedSum.h"

#include <algorithm>

namespace drossbin {

namespace {

void count(const DiskItem& item, CategorySurvey& survey) {
    ++survey.count;
    survey.size = checkedSum(survey.size, item.size);
    if (item.isSelected) {
        ++survey.selectedCount;
        survey.selectedSize = checkedSum(survey.selectedSize, item.size);
    }
}

void sortLargestFirst(std::vector<std::size_t>& places, const std::vector<DiskItem>& items) {
    const auto sizeOf = [&items](std::size_t place) { return items[place].size; };
    // A scan's list is sorted already, and seeing that is cheaper than sorting it again.
    if (!std::ranges::is_sorted(places, std::ranges::greater{}, sizeOf)) {
        std::ranges::stable_sort(places, std::ranges::greater{}, sizeOf);
    }
}

} // namespace

ListIdentity ListIdentity::of(const std::vector<DiskItem>& items) {
    return items.empty() ? ListIdentity{} : ListIdentity{items.size(), items.front().id};
}

ItemSurvey ItemSurveyor::survey(const ScanResult& result, std::optional<DiskCategory> shown) {
    remember(result);
    const std::vector<DiskItem>& items = result.items;
    ItemSurvey survey;
    survey.list = *m_list;
    survey.rows.reserve(items.size());
    for (std::size_t place = 0; place < items.size(); ++place) {
        const DiskItem& item = items[place];
        survey.totalSize = checkedSum(survey.totalSize, item.size);
        if (item.isSelected) {
            countSelected(item, place, survey);
        }
        if (m_passes[place]) {
            count(item, survey.categories.at(static_cast<std::size_t>(item.category)));
            if (item.category == shown) {
                survey.rows.push_back(place);
            }
        }
    }
    sortLargestFirst(survey.rows, items);
    return survey;
}

void ItemSurveyor::remember(const ScanResult& result) {
    const std::vector<DiskItem>& items = result.items;
    const ListIdentity list = ListIdentity::of(items);
    const bool isSameList = m_list == list;
    if (!isSameList) {
        m_browserData.assign(items.size(), BrowserData::unknown);
    }
    if (!isSameList || m_searchText != result.searchText.get()) {
        const ItemFilter filter(result.searchText.get());
        m_passes.clear();
        m_passes.reserve(items.size());
        for (const DiskItem& item : items) {
            m_passes.push_back(filter.passes(item));
        }
    }
    m_list = list;
    m_searchText = result.searchText;
}

void ItemSurveyor::countSelected(const DiskItem& item, std::size_t place, ItemSurvey& survey) {
    survey.selected.push_back(place);
    survey.selectedSize = checkedSum(survey.selectedSize, item.size);
    survey.hasBrowserData = survey.hasBrowserData || isBrowserData(item, place);
}

bool ItemSurveyor::isBrowserData(const DiskItem& item, std::size_t place) {
    BrowserData& known = m_browserData[place];
    if (known == BrowserData::unknown) {
        known =
            containsBrowserWord(item.name, item.path) ? BrowserData::present : BrowserData::absent;
    }
    return known == BrowserData::present;
}

} // namespace drossbin
