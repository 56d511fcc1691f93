#include "app/ItemSurvey.h"

#include "app/BrowserWords.h"
#include "model/ItemFilter.h"
#include "platform/CheckedSum.h"

#include <algorithm>

namespace drossbin {

ListIdentity ListIdentity::of(const std::vector<DiskItem>& items) {
    return items.empty() ? ListIdentity{} : ListIdentity{items.size(), items.front().id};
}

ItemSurvey ItemSurveyor::survey(const ScanResult& result, std::optional<DiskCategory> shown) {
    remember(result);
    ItemSurvey survey;
    survey.list = *m_list;
    for (std::size_t place = 0; place < m_facts.size(); ++place) {
        const Facts& facts = m_facts[place];
        survey.totalSize = checkedSum(survey.totalSize, facts.size);
        if (facts.isSelected) {
            countSelected(result.items.get()[place], place, survey);
        }
        if (facts.passes) {
            count(facts, survey.categories.at(static_cast<std::size_t>(facts.category)));
            if (facts.category == shown) {
                survey.rows.push_back(place);
            }
        }
    }
    finishRows(survey);
    return survey;
}

void ItemSurveyor::remember(const ScanResult& result) {
    const std::vector<DiskItem>& items = result.items;
    if (m_list != ListIdentity::of(items)) {
        rememberList(items);
    }
    if (!m_isSelectionKnown) {
        rememberSelection(items);
    }
    if (m_searchText != result.searchText.get()) {
        filter(result.searchText);
    }
}

void ItemSurveyor::rememberList(const std::vector<DiskItem>& items) {
    m_facts.clear();
    m_facts.reserve(items.size());
    for (const DiskItem& item : items) {
        m_facts.push_back({item.size, item.category, item.isSelected, true, BrowserData::unknown});
    }
    m_texts.emplace(items);
    m_list = ListIdentity::of(items);
    m_searchText.reset();
    m_isSelectionKnown = true;
}

void ItemSurveyor::rememberSelection(const std::vector<DiskItem>& items) {
    for (std::size_t place = 0; place < items.size(); ++place) {
        m_facts[place].isSelected = items[place].isSelected;
    }
    m_isSelectionKnown = true;
}

void ItemSurveyor::filter(const std::string& searchText) {
    const ItemFilter filter(searchText);
    for (std::size_t place = 0; place < m_facts.size(); ++place) {
        m_facts[place].passes = filter.passes(*m_texts, place);
    }
    m_searchText = searchText;
}

void ItemSurveyor::count(const Facts& facts, CategorySurvey& survey) {
    ++survey.count;
    survey.size = checkedSum(survey.size, facts.size);
    if (facts.isSelected) {
        ++survey.selectedCount;
        survey.selectedSize = checkedSum(survey.selectedSize, facts.size);
    }
}

void ItemSurveyor::countSelected(const DiskItem& item, std::size_t place, ItemSurvey& survey) {
    survey.selected.push_back(place);
    survey.selectedSize = checkedSum(survey.selectedSize, m_facts[place].size);
    survey.hasBrowserData = survey.hasBrowserData || isBrowserData(item, place);
}

bool ItemSurveyor::isBrowserData(const DiskItem& item, std::size_t place) {
    BrowserData& known = m_facts[place].browserData;
    if (known == BrowserData::unknown) {
        known =
            containsBrowserWord(item.name, item.path) ? BrowserData::present : BrowserData::absent;
    }
    return known == BrowserData::present;
}

void ItemSurveyor::finishRows(ItemSurvey& survey) const {
    std::vector<std::size_t>& rows = survey.rows;
    const auto sizeOf = [this](std::size_t place) { return m_facts[place].size; };
    // A scan's list is sorted already, and seeing that is cheaper than sorting it again.
    if (!std::ranges::is_sorted(rows, std::ranges::greater{}, sizeOf)) {
        std::ranges::stable_sort(rows, std::ranges::greater{}, sizeOf);
    }
    survey.areRowsSelected.reserve(rows.size());
    for (const std::size_t place : rows) {
        survey.areRowsSelected.push_back(m_facts[place].isSelected);
    }
}

} // namespace drossbin
