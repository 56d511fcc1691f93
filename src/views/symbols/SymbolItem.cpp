#include "views/symbols/SymbolItem.h"

#include "views/symbols/PixelAlignedImage.h"
#include "views/symbols/SymbolDrawing.h"

#include <QQmlInfo>
#include <QQuickWindow>

#include <memory>

namespace drossbin {

SymbolItem::SymbolItem(QQuickItem* parent)
    : QQuickItem(parent) {
    setFlag(ItemHasContents);
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
    m_image = isMade ? drawSymbol(m_name, m_color, m_isHeavy, symbolPixels(room)) : QImage();
    if (isMade && m_image.isNull()) {
        qmlWarning(this) << "There is no symbol named " << m_name;
    }
    update();
}

QSGNode* SymbolItem::updatePaintNode(QSGNode* old, UpdatePaintNodeData* /*data*/) {
    std::unique_ptr<PixelAlignedImage> node(static_cast<PixelAlignedImage*>(old));
    if (m_image.isNull()) {
        return nullptr;
    }
    if (!node) {
        node = std::make_unique<PixelAlignedImage>(*window());
    }
    node->show(m_image, boundingRect().center(), *window());
    return node.release();
}

} // namespace drossbin
