#include "app/LogLinesModel.h"

#include "app/Texts.h"

namespace drossbin {

int LogLinesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_lines.size());
}

QVariant LogLinesModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const std::string& line = m_lines[static_cast<std::size_t>(index.row())];
    switch (role) {
    case TextRole:
        return toQString(line);
    case IsSuccessRole:
        return line.starts_with("✅");
    default:
        return {};
    }
}

QHash<int, QByteArray> LogLinesModel::roleNames() const {
    return {{TextRole, "text"}, {IsSuccessRole, "isSuccess"}};
}

void LogLinesModel::refresh(const std::vector<std::string>& lines) {
    if (lines == m_lines) {
        return;
    }
    beginResetModel();
    m_lines = lines;
    endResetModel();
}

} // namespace drossbin
