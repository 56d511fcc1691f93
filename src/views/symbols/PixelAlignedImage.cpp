#include "views/symbols/PixelAlignedImage.h"

#include <QPainter>
#include <QQuickWindow>

#include <cmath>

namespace drossbin {
namespace {

/// The fewest points that hold so many pixels and are whole pixels themselves, as far as the ratio
/// has such. Painted items are whole points wide.
int pointsFor(int pixels, qreal ratio) {
    constexpr int farEnough = 8;
    const int least = qCeil(pixels / ratio);
    for (int points = least; points < least + farEnough; ++points) {
        if (points * ratio == std::floor(points * ratio)) {
            return points;
        }
    }
    return least;
}

QPointF rounded(const QPointF& point) {
    return {std::round(point.x()), std::round(point.y())};
}

} // namespace

PixelAlignedImage::PixelAlignedImage(QQuickItem* parent)
    : QQuickPaintedItem(parent) {}

void PixelAlignedImage::show(const QImage& image) {
    m_image = image;
    setVisible(!image.isNull());
    if (!image.isNull()) {
        const qreal ratio = window()->effectiveDevicePixelRatio();
        setSize(QSizeF(pointsFor(image.width(), ratio), pointsFor(image.height(), ratio)));
        update();
    }
}

void PixelAlignedImage::paint(QPainter* painter) {
    painter->resetTransform();
    painter->drawImage(0, 0, m_image);
}

void PixelAlignedImage::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemSceneChange) {
        disconnect(m_frames);
        if (data.window) {
            m_frames = connect(data.window, &QQuickWindow::afterAnimating, this,
                               &PixelAlignedImage::align);
        }
    }
    QQuickPaintedItem::itemChange(change, data);
}

void PixelAlignedImage::align() {
    const qreal ratio = window()->effectiveDevicePixelRatio();
    const QSizeF size = QSizeF(m_image.size()) / ratio;
    QPointF place((parentItem()->width() - size.width()) / 2,
                  (parentItem()->height() - size.height()) / 2);
    const QTransform way = parentItem()->itemTransform(nullptr, nullptr);
    // What is scaled or turned has no whole pixels to lie on.
    const bool isMoved = way.type() <= QTransform::TxTranslate;
    if (isMoved) {
        place += rounded(way.map(place) * ratio) / ratio - way.map(place);
    }
    setPosition(place);
    setSmooth(!isMoved);
}

} // namespace drossbin
