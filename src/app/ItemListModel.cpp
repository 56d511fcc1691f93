#include "app/ItemListModel.h"

#include "app/Formatting.h"

#include <algorithm>
#include <utility>

namespace drossbin {

ItemListModel::ItemListModel(ScanResult& result, QObject* parent)
    : QAbstractListModel(parent)
    , m_result(result) {}

int ItemListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_items.size());
}

QVariant ItemListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const DiskItem& item = m_items[static_cast<std::size_t>(index.row())];
    switch (role) {
    case NameRole:
        return displayQString(item.name);
    case PathRole:
        return displayQString(item.path);
    case SymbolRole:
        return toQString(item.sfSymbol);
    case HasNoteRole:
        return item.safetyNote.has_value();
    case NoteRole:
        return toQString(item.safetyNote.value_or(""));
    case RiskColorRole:
        return toQString(color(item.risk));
    case RiskLabelRole:
        return toQString(label(item.risk));
    case RiskSymbolRole:
        return toQString(icon(item.risk));
    case DateTextRole:
        return toQString(item.formattedDate());
    case SizeTextRole:
        return toQString(item.formattedSize());
    case IsSelectedRole:
        return item.isSelected;
    case IsProtectedRole:
        return item.risk == RiskLevel::critical;
    default:
        return {};
    }
}

QHash<int, QByteArray> ItemListModel::roleNames() const {
    return {
        {NameRole, "name"},
        {PathRole, "path"},
        {SymbolRole, "symbol"},
        {HasNoteRole, "hasNote"},
        {NoteRole, "note"},
        {RiskColorRole, "riskColor"},
        {RiskLabelRole, "riskLabel"},
        {RiskSymbolRole, "riskSymbol"},
        {DateTextRole, "dateText"},
        {SizeTextRole, "sizeText"},
        {IsSelectedRole, "isSelected"},
        {IsProtectedRole, "isProtected"},
    };
}

void ItemListModel::refresh(std::vector<DiskItem> items) {
    if (shows(items)) {
        announceSelectionSince(std::exchange(m_items, std::move(items)));
    } else {
        replaceItems(std::move(items));
    }
}

void ItemListModel::restart(std::vector<DiskItem> items) {
    if (!shows(items)) {
        beginResetModel();
        m_items = std::move(items);
        endResetModel();
    }
}

bool ItemListModel::shows(const std::vector<DiskItem>& items) const {
    return std::ranges::equal(items, m_items, {}, &DiskItem::id, &DiskItem::id);
}

void ItemListModel::replaceItems(std::vector<DiskItem> items) {
    const int last = rowCount();
    const int next = static_cast<int>(items.size());
    if (next < last) {
        beginRemoveRows({}, next, last - 1);
        m_items = std::move(items);
        endRemoveRows();
    } else if (next > last) {
        beginInsertRows({}, last, next - 1);
        m_items = std::move(items);
        endInsertRows();
    } else {
        m_items = std::move(items);
    }
    if (const int kept = std::min(last, next); kept > 0) {
        emit dataChanged(index(0), index(kept - 1));
    }
}

void ItemListModel::announceSelectionSince(const std::vector<DiskItem>& last) {
    const auto differs = [&](int row) {
        const auto at = static_cast<std::size_t>(row);
        return last[at].isSelected != m_items[at].isSelected;
    };
    for (int row = 0; row < rowCount(); ++row) {
        if (!differs(row)) {
            continue;
        }
        const int first = row;
        while (row + 1 < rowCount() && differs(row + 1)) {
            ++row;
        }
        emit dataChanged(index(first), index(row), {IsSelectedRole});
    }
}

void ItemListModel::toggle(int row) {
    if (hasIndex(row, 0)) {
        m_result.toggleSelectionFor(m_items[static_cast<std::size_t>(row)]);
    }
}

} // namespace drossbin
