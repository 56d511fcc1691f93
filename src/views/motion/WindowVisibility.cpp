#include "views/motion/WindowVisibility.h"

#include <QEvent>

namespace drossbin {

void WindowVisibility::setWindow(QQuickWindow* window) {
    if (window == m_window) {
        return;
    }
    if (m_window) {
        m_window->removeEventFilter(this);
        m_window->disconnect(this);
    }
    m_window = window;
    if (m_window) {
        m_window->installEventFilter(this);
        connect(m_window, &QWindow::visibilityChanged, this, &WindowVisibility::look);
    }
    emit windowChanged();
    look();
}

bool WindowVisibility::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Expose) {
        look();
    }
    return QObject::eventFilter(watched, event);
}

void WindowVisibility::look() {
    const bool isSeen =
        m_window && m_window->isExposed() && m_window->visibility() != QWindow::Minimized;
    if (isSeen != m_isSeen) {
        m_isSeen = isSeen;
        emit isSeenChanged();
    }
}

} // namespace drossbin
