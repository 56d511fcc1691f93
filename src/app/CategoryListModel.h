#pragma once

#include "app/ItemSurvey.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <array>
#include <optional>

namespace drossbin {

/// The five categories in their declared order, with what the filter lets through of each.
class CategoryListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Owned by ContentView")

  public:
    enum Role {
        NameRole = Qt::UserRole,
        IconRole,
        SubtitleRole,
        CountTextRole,
        SizeTextRole,
        CaptionRole,
        IsCurrentRole,
    };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// Announces the roles that changed, row by row.
    void refresh(const ItemSurvey& survey, std::optional<DiskCategory> current);

  private:
    struct Row {
        std::size_t count = 0;
        std::int64_t size = 0;
        bool isCurrent = false;
    };

    std::array<Row, allDiskCategories.size()> m_rows{};
};

} // namespace drossbin
