#pragma once

#include "model/ScanResult.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace drossbin {

/// A list of items, each row a copy of its own. A change of the selection touches only the rows
/// selected or deselected, so that the list keeps its place; texts are made for the rows that are
/// looked at.
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

    /// The same items may be selected otherwise. Where there are others, rows that stay get those,
    /// which costs a view a tenth of building them anew.
    void refresh(std::vector<DiskItem> items);

    /// Other items are shown anew, from the top; the same ones stay as they are.
    void restart(std::vector<DiskItem> items);

    /// Flips the selection of the row's item; does nothing for a protected one, or one that the
    /// session no longer has.
    Q_INVOKABLE void toggle(int row);

  private:
    [[nodiscard]] bool shows(const std::vector<DiskItem>& items) const;
    void replaceItems(std::vector<DiskItem> items);
    void announceSelectionSince(const std::vector<DiskItem>& last);

    ScanResult& m_result;
    std::vector<DiskItem> m_items;
};

} // namespace drossbin
