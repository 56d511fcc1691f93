#include "views/controls/AccessItem.h"

#include "views/controls/AccessItemInterface.h"

namespace drossbin {
namespace {

QAccessibleInterface* interfaceFor(const QString& /*className*/, QObject* object) {
    auto* item = qobject_cast<AccessItem*>(object);
    return item == nullptr ? nullptr : new AccessItemInterface(item);
}

} // namespace

AccessItem::AccessItem(QQuickItem* parent)
    : QQuickItem(parent) {
    QAccessible::installFactory(interfaceFor); // once, however often it is asked for
}

} // namespace drossbin
