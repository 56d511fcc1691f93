#pragma once

#include <QPointer>
#include <QQuickWindow>
#include <QtQml/qqmlregistration.h>

namespace drossbin {

/// Whether a window can be seen: shown, and neither minimised nor wholly covered as far as the
/// system tells. QML itself knows only of the former.
class WindowVisibility : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickWindow* window READ window WRITE setWindow NOTIFY windowChanged)
    Q_PROPERTY(bool isSeen READ isSeen NOTIFY isSeenChanged)

  public:
    using QObject::QObject;

    [[nodiscard]] QQuickWindow* window() const { return m_window; }
    void setWindow(QQuickWindow* window);
    [[nodiscard]] bool isSeen() const { return m_isSeen; }

    bool eventFilter(QObject* watched, QEvent* event) override;

  signals:
    void windowChanged();
    void isSeenChanged();

  private:
    void look();

    QPointer<QQuickWindow> m_window;
    bool m_isSeen = false;
};

} // namespace drossbin
