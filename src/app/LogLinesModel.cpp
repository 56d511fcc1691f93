#include "app/LogLinesModel.h"

#include "app/Formatting.h"

#include <algorithm>

namespace drossbin {
namespace {

bool isSuccess(std::string_view line) {
    return line.starts_with("✅");
}

} // namespace

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
        return isSuccess(line);
    default:
        return {};
    }
}

QHash<int, QByteArray> LogLinesModel::roleNames() const {
    return {{TextRole, "text"}, {IsSuccessRole, "isSuccess"}};
}

int LogLinesModel::firstFailure() const {
    const auto line = std::ranges::find_if_not(m_lines, isSuccess);
    return line == m_lines.end() ? -1 : static_cast<int>(line - m_lines.begin());
}

QString LogLinesModel::failure() const {
    const int row = firstFailure();
    return row < 0 ? QString() : toQString(m_lines[static_cast<std::size_t>(row)]);
}

void LogLinesModel::refresh(const std::vector<std::string>& lines) {
    if (lines == m_lines) {
        return;
    }
    beginResetModel();
    m_lines = lines;
    endResetModel();
    emit linesChanged();
}

} // namespace drossbin
