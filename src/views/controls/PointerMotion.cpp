#include "views/controls/PointerMotion.h"

#include <QCoreApplication>
#include <QEvent>

namespace drossbin {

PointerMotion::PointerMotion(QObject* parent)
    : QObject(parent) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool PointerMotion::eventFilter(QObject* watched, QEvent* event) {
    // A window looks anew at what the pointer is on when it draws, which is an event of its own.
    if (watched->isWindowType()) {
        m_isUnderWay = event->type() == QEvent::MouseMove;
        if (m_isUnderWay) {
            emit moved();
        }
    }
    return false;
}

} // namespace drossbin
