#include "views/symbols/SymbolItem.h"

#include "views/symbols/SymbolDrawing.h"

#include <QQmlInfo>
#include <QQuickWindow>

namespace drossbin {

SymbolItem::SymbolItem(QQuickItem* parent)
    : QQuickItem(parent) {
    connect(this, &SymbolItem::changed, this, [this] {
        setImplicitSize(m_size, m_size);
        polish();
    });
}

void SymbolItem::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemDevicePixelRatioHasChanged) {
        polish();
    }
    QQuickItem::itemChange(change, data);
}

void SymbolItem::updatePolish() {
    const int room = qRound(m_size * window()->effectiveDevicePixelRatio());
    // What is made in pieces may be polished before it has its size.
    const bool isMade = !m_name.isEmpty() && room > 0;
    const QImage image =
        isMade ? drawSymbol(m_name, m_color, m_isHeavy, symbolPixels(room)) : QImage();
    if (isMade && image.isNull()) {
        qmlWarning(this) << "There is no symbol named " << m_name;
    }
    m_image.show(image);
}

} // namespace drossbin
