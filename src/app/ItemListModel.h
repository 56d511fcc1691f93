#pragma once

#include "app/ItemRows.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace drossbin {

/// The rows of the category shown. A change of the selection touches only the rows selected or
/// deselected, so that the list keeps its place; texts are made for the rows that are looked at.
class ItemListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Owned by ContentView")

  public:
    enum Role {
        NameRole = Qt::UserRole,
        PathRole,
        SymbolRole,
        HasNoteRole,
        NoteRole,
        RiskColorRole,
        RiskLabelRole,
        RiskSymbolRole,
        DateTextRole,
        SizeTextRole,
        IsSelectedRole,
        IsProtectedRole,
    };

    explicit ItemListModel(ScanResult& result, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// Shows the survey's rows and their selection. Rows that stay get other items, which costs a
    /// view a tenth of building them anew.
    void refresh(const ItemSurvey& survey);

    /// Flips the selection of the row's item; does nothing for a protected one.
    Q_INVOKABLE void toggle(int row);

  private:
    void replaceRows(const ItemSurvey& survey);
    void announceChangesSince(const std::vector<bool>& last);

    ScanResult& m_result;
    ItemRows m_rows;
    std::vector<bool> m_isSelected;
};

} // namespace drossbin
