#include "views/controls/SinglePress.h"

#include <QKeyEvent>
#include <QQuickItem>

namespace drossbin {

void SinglePress::setWindow(QQuickWindow* window) {
    if (m_window != nullptr) {
        m_window->removeEventFilter(this);
    }
    m_window = window;
    if (m_window != nullptr) {
        m_window->installEventFilter(this);
    }
}

bool SinglePress::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) {
        return false;
    }
    const auto* const key = static_cast<QKeyEvent*>(event);
    if (!key->isAutoRepeat()) {
        return false;
    }
    switch (key->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
        return true;
    case Qt::Key_Space:
        return !isTyping();
    default:
        return false;
    }
}

bool SinglePress::isTyping() const {
    const QQuickItem* const focused = m_window->activeFocusItem();
    return focused != nullptr && focused->flags().testFlag(QQuickItem::ItemAcceptsInputMethod);
}

} // namespace drossbin
