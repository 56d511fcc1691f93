#pragma once

#include <QPointer>
#include <QQuickWindow>
#include <QtQml/qqmlregistration.h>

namespace drossbin {

/// Keys that press something press it once, however long they are held: their repetitions do not
/// reach the window's controls. Otherwise a Return held a moment too long on one sheet would press
/// the button of the next. Other keys, and spaces that are typed, do repeat.
class SinglePress : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickWindow* window MEMBER m_window WRITE setWindow)

  public:
    void setWindow(QQuickWindow* window);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] bool isTyping() const;

    QPointer<QQuickWindow> m_window;
};

} // namespace drossbin
