#pragma once

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <string>
#include <vector>

namespace drossbin {

/// The lines of the last deletion, in order.
class LogLinesModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Owned by ContentView")
    Q_PROPERTY(int firstFailure READ firstFailure NOTIFY linesChanged)
    Q_PROPERTY(QString failure READ failure NOTIFY linesChanged)

  public:
    enum Role { TextRole = Qt::UserRole, IsSuccessRole };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// The row of the first line that tells of a failure, or -1.
    [[nodiscard]] int firstFailure() const;
    /// What that line says, or nothing.
    [[nodiscard]] QString failure() const;

    void refresh(const std::vector<std::string>& lines);

  signals:
    void linesChanged();

  private:
    std::vector<std::string> m_lines;
};

} // namespace drossbin
