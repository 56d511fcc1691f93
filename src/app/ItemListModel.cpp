#include "app/ItemListModel.h"

#include "app/Texts.h"

#include <algorithm>
#include <utility>

namespace drossbin {

ItemListModel::ItemListModel(ScanResult& result, QObject* parent)
    : QAbstractListModel(parent)
    , m_result(result)
    , m_rows(result) {}

int ItemListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows.count();
}

QVariant ItemListModel::data(const QModelIndex& index, int role) const {
    const DiskItem* const item = m_rows.at(index.row());
    if (item == nullptr) {
        return {};
    }
    switch (role) {
    case NameRole:
        return displayQString(item->name);
    case PathRole:
        return displayQString(item->path);
    case SymbolRole:
        return toQString(item->sfSymbol);
    case HasNoteRole:
        return item->safetyNote.has_value();
    case NoteRole:
        return toQString(item->safetyNote.value_or(""));
    case RiskColorRole:
        return toQString(color(item->risk));
    case RiskLabelRole:
        return toQString(label(item->risk));
    case RiskSymbolRole:
        return toQString(icon(item->risk));
    case DateTextRole:
        return toQString(item->formattedDate());
    case SizeTextRole:
        return toQString(item->formattedSize());
    case IsSelectedRole:
        return item->isSelected;
    case IsProtectedRole:
        return item->risk == RiskLevel::critical;
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

void ItemListModel::refresh(const ItemSurvey& survey) {
    if (m_rows.are(survey.list, survey.rows)) {
        announceChangesSince(std::exchange(m_isSelected, survey.areRowsSelected));
        return;
    }
    const int last = m_rows.count();
    const int next = static_cast<int>(survey.rows.size());
    if (next < last) {
        beginRemoveRows({}, next, last - 1);
        replaceRows(survey);
        endRemoveRows();
    } else if (next > last) {
        beginInsertRows({}, last, next - 1);
        replaceRows(survey);
        endInsertRows();
    } else {
        replaceRows(survey);
    }
    if (const int kept = std::min(last, next); kept > 0) {
        emit dataChanged(index(0), index(kept - 1));
    }
}

void ItemListModel::replaceRows(const ItemSurvey& survey) {
    m_rows.replace(survey.list, survey.rows);
    m_isSelected = survey.areRowsSelected;
}

void ItemListModel::toggle(int row) {
    if (const DiskItem* const item = m_rows.at(row)) {
        m_result.toggleSelectionFor(*item);
    }
}

void ItemListModel::announceChangesSince(const std::vector<bool>& last) {
    const auto differs = [&](int row) {
        const auto at = static_cast<std::size_t>(row);
        return last[at] != m_isSelected[at];
    };
    for (int row = 0; row < m_rows.count(); ++row) {
        if (!differs(row)) {
            continue;
        }
        const int first = row;
        while (row + 1 < m_rows.count() && differs(row + 1)) {
            ++row;
        }
        emit dataChanged(index(first), index(row), {IsSelectedRole});
    }
}

} // namespace drossbin
