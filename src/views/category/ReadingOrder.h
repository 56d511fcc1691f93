#pragma once

#include <QObject>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace drossbin {

/// The order of the items that share a parent, in which screen readers tell of them. A view adds
/// its rows in the order in which it needs them, which is another where it scrolls up or uses rows
/// again.
class ReadingOrder : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

  public:
    /// Puts an item right after `previous` or, where that is none, right before `next`. Does
    /// nothing without an item.
    Q_INVOKABLE static void put(QQuickItem* item, const QQuickItem* previous,
                                const QQuickItem* next);
};

} // namespace drossbin
