#include "app/SelectedItemsModel.h"

#include "app/Texts.h"

namespace drossbin {

SelectedItemsModel::SelectedItemsModel(const ScanResult& result, QObject* parent)
    : QAbstractListModel(parent)
    , m_rows(result) {}

int SelectedItemsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows.count();
}

QVariant SelectedItemsModel::data(const QModelIndex& index, int role) const {
    const DiskItem* const item = m_rows.at(index.row());
    if (item == nullptr) {
        return {};
    }
    switch (role) {
    case NameRole:
        return displayQString(item->name);
    case PathRole:
        return displayQString(item->path);
    case SizeTextRole:
        return toQString(item->formattedSize());
    case RiskColorRole:
        return toQString(color(item->risk));
    case RiskLabelRole:
        return toQString(label(item->risk));
    case RiskSymbolRole:
        return toQString(icon(item->risk));
    default:
        return {};
    }
}

QHash<int, QByteArray> SelectedItemsModel::roleNames() const {
    return {{NameRole, "name"},           {PathRole, "path"},
            {SizeTextRole, "sizeText"},   {RiskColorRole, "riskColor"},
            {RiskLabelRole, "riskLabel"}, {RiskSymbolRole, "riskSymbol"}};
}

void SelectedItemsModel::refresh(const ItemSurvey& survey) {
    if (m_rows.are(survey.list, survey.selected)) {
        return;
    }
    beginResetModel();
    m_rows.replace(survey.list, survey.selected);
    endResetModel();
}

} // namespace drossbin
