#include "views/controls/LastPress.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace drossbin {
namespace {

bool isModifier(int key) {
    return (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_AltGr ||
           key == Qt::Key_Super_L || key == Qt::Key_Super_R;
}

} // namespace

LastPress::LastPress(QObject* parent)
    : QObject(parent) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool LastPress::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        return focus(watched, static_cast<QFocusEvent*>(event)->reason());
    }
    if (!watched->isWindowType()) {
        return false;
    }
    if (event->type() == QEvent::KeyPress) {
        const auto* const key = static_cast<QKeyEvent*>(event);
        if (!key->isAutoRepeat() && !isModifier(key->key())) {
            note(Qt::TabFocusReason);
        }
    } else if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin) {
        note(Qt::MouseFocusReason);
    }
    return false;
}

/// Whether the item has been told of its focus, with a better reason than the one given.
bool LastPress::focus(QObject* item, Qt::FocusReason given) const {
    if (given != Qt::PopupFocusReason && given != Qt::ActiveWindowFocusReason) {
        return false;
    }
    QFocusEvent better(QEvent::FocusIn, m_reason);
    QCoreApplication::sendEvent(item, &better);
    return true;
}

void LastPress::note(Qt::FocusReason reason) {
    m_reason = reason;
    emit pressed();
}

} // namespace drossbin
