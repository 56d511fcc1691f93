#pragma once

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace drossbin {

/// Stands for a control in the accessibility tree where Qt 6.4's own account of it falls short: it
/// is told to be disabled when it is, and a progress bar has its value, 0 to 1. It has no children;
/// its role, name and description are those of its `Accessible`.
class AccessItem : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qreal value MEMBER m_value NOTIFY valueChanged)

  public:
    explicit AccessItem(QQuickItem* parent = nullptr);

    [[nodiscard]] qreal value() const { return m_value; }

  signals:
    void valueChanged();

  private:
    qreal m_value = 0;
};

} // namespace drossbin
