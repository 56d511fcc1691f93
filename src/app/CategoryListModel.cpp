#include "app/CategoryListModel.h"

#include "app/Formatting.h"

#include <utility>

namespace drossbin {

int CategoryListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant CategoryListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const auto place = static_cast<std::size_t>(index.row());
    const DiskCategory category = allDiskCategories.at(place);
    const Row& row = m_rows.at(place);
    switch (role) {
    case NameRole:
        return toQString(rawValue(category));
    case IconRole:
        return toQString(icon(category));
    case SubtitleRole:
        return toQString(subtitle(category));
    case CountTextRole:
        return countText(row.count);
    case SizeTextRole:
        return sizeText(row.size);
    case CaptionRole:
        return itemsAndSizeText(row.count, row.size);
    case IsCurrentRole:
        return row.isCurrent;
    default:
        return {};
    }
}

QHash<int, QByteArray> CategoryListModel::roleNames() const {
    return {{NameRole, "name"},           {IconRole, "icon"},         {SubtitleRole, "subtitle"},
            {CountTextRole, "countText"}, {SizeTextRole, "sizeText"}, {CaptionRole, "caption"},
            {IsCurrentRole, "isCurrent"}};
}

void CategoryListModel::refresh(const ItemSurvey& survey, std::optional<DiskCategory> current) {
    for (const DiskCategory category : allDiskCategories) {
        const auto place = static_cast<std::size_t>(category);
        const CategorySurvey& found = survey.of(category);
        const Row next{found.count, found.size, category == current};
        const Row last = std::exchange(m_rows.at(place), next);
        QList<int> changed;
        if (last.count != next.count || last.size != next.size) {
            changed << CountTextRole << SizeTextRole << CaptionRole;
        }
        if (last.isCurrent != next.isCurrent) {
            changed << IsCurrentRole;
        }
        if (!changed.isEmpty()) {
            const QModelIndex row = index(static_cast<int>(place));
            emit dataChanged(row, row, changed);
        }
    }
}

} // namespace drossbin
