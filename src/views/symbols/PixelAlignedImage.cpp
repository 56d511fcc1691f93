#include "views/symbols/PixelAlignedImage.h"

#include <QQuickWindow>

#include <cmath>

namespace drossbin {
namespace {

/// What takes the node's parent into the window.
QMatrix4x4 wayToWindow(const QSGNode* parent) {
    QMatrix4x4 way;
    for (const QSGNode* node = parent; node; node = node->parent()) {
        if (node->type() == QSGNode::TransformNodeType) {
            way = static_cast<const QSGTransformNode*>(node)->matrix() * way;
        }
    }
    return way;
}

/// Whether it only moves things. What is scaled or turned has no whole pixels to lie on.
bool isMove(const QMatrix4x4& way) {
    return way(0, 0) == 1 && way(1, 1) == 1 && way(0, 1) == 0 && way(1, 0) == 0;
}

} // namespace

PixelAlignedImage::PixelAlignedImage(const QQuickWindow& window)
    : m_image(window.createImageNode()) {
    setFlag(UsePreprocess);
    m_image->setOwnsTexture(true);
    appendChildNode(m_image.get());
}

void PixelAlignedImage::show(const QImage& image, const QPointF& center,
                             const QQuickWindow& window) {
    m_ratio = window.effectiveDevicePixelRatio();
    QRectF place({}, QSizeF(image.size()) / m_ratio);
    place.moveCenter(center);
    m_image->setTexture(window.createTextureFromImage(image, QQuickWindow::TextureCanUseAtlas));
    m_image->setSourceRect(image.rect());
    m_image->setRect(place);
}

void PixelAlignedImage::preprocess() {
    const QMatrix4x4 way = wayToWindow(parent());
    QMatrix4x4 nudge;
    if (isMove(way)) {
        const QPointF corner = way.map(m_image->rect().topLeft()) * m_ratio;
        nudge.translate(float((std::round(corner.x()) - corner.x()) / m_ratio),
                        float((std::round(corner.y()) - corner.y()) / m_ratio));
    }
    m_image->setFiltering(isMove(way) ? QSGTexture::Nearest : QSGTexture::Linear);
    if (nudge != matrix()) {
        setMatrix(nudge);
    }
}

} // namespace drossbin
