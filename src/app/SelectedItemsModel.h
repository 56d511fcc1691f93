#pragma once

#include "app/ItemRows.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace drossbin {

/// The selected items of every category in list order, as the confirmation lists them.
class SelectedItemsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Owned by ContentView")

  public:
    enum Role {
        NameRole = Qt::UserRole,
        PathRole,
        SizeTextRole,
        RiskColorRole,
        RiskLabelRole,
        RiskSymbolRole,
    };

    explicit SelectedItemsModel(const ScanResult& result, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    void refresh(const ItemSurvey& survey);

  private:
    ItemRows m_rows;
};

} // namespace drossbin
