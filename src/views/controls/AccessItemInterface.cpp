#include "views/controls/AccessItemInterface.h"

#include <QQmlContext>
#include <QQmlProperty>
#include <QQuickWindow>

namespace drossbin {
namespace {

/// What QML says about the item in its `Accessible`.
QVariant said(QQuickItem* item, const QString& property) {
    return QQmlProperty::read(item, property, qmlContext(item));
}

/// Disabled controls are ignored in favour of what stands for them.
bool isIgnored(QQuickItem* item) {
    return said(item, QStringLiteral("Accessible.ignored")).toBool();
}

} // namespace

AccessItemInterface::AccessItemInterface(AccessItem* item)
    : QAccessibleObject(item) {}

AccessItem* AccessItemInterface::item() const {
    return static_cast<AccessItem*>(object());
}

QWindow* AccessItemInterface::window() const {
    return item()->window();
}

QRect AccessItemInterface::rect() const {
    if (window() == nullptr) {
        return {};
    }
    const QRect inWindow = item()->mapRectToScene(item()->boundingRect()).toRect();
    return {window()->mapToGlobal(inWindow.topLeft()), inWindow.size()};
}

QString AccessItemInterface::text(QAccessible::Text kind) const {
    switch (kind) {
    case QAccessible::Name:
        return said(item(), QStringLiteral("Accessible.name")).toString();
    case QAccessible::Description:
        return said(item(), QStringLiteral("Accessible.description")).toString();
    default:
        return {};
    }
}

QAccessible::Role AccessItemInterface::role() const {
    return said(item(), QStringLiteral("Accessible.role")).value<QAccessible::Role>();
}

QAccessible::State AccessItemInterface::state() const {
    QAccessible::State state;
    state.disabled = !item()->isEnabled();
    state.checkable = role() == QAccessible::CheckBox;
    state.checked = said(item(), QStringLiteral("Accessible.checked")).toBool();
    state.focused = item()->hasActiveFocus();
    state.focusable = state.focused;
    state.readOnly = role() == QAccessible::ProgressBar;
    state.invisible = window() == nullptr || !item()->isVisible();
    state.offscreen = !state.invisible && !window()->geometry().intersects(rect());
    return state;
}

QAccessibleInterface* AccessItemInterface::parent() const {
    for (QQuickItem* above = item()->parentItem(); above != nullptr; above = above->parentItem()) {
        QAccessibleInterface* found = QAccessible::queryAccessibleInterface(above);
        if (found != nullptr && !isIgnored(above)) {
            return found;
        }
    }
    return QAccessible::queryAccessibleInterface(window());
}

void* AccessItemInterface::interface_cast(QAccessible::InterfaceType type) {
    const bool hasValue = role() == QAccessible::ProgressBar;
    return type == QAccessible::ValueInterface && hasValue
               ? static_cast<QAccessibleValueInterface*>(this)
               : nullptr;
}

QVariant AccessItemInterface::currentValue() const {
    return item()->value();
}

} // namespace drossbin
