#include "views/controls/ProgressArc.h"

#include <QPainter>

#include <algorithm>

namespace drossbin {

ProgressArc::ProgressArc(QQuickItem* parent)
    : QQuickPaintedItem(parent) {
    connect(this, &ProgressArc::changed, this, [this] { update(); });
}

void ProgressArc::paint(QPainter* painter) {
    // QPainter counts angles in sixteenths of a degree, anticlockwise from three o'clock.
    constexpr int top = 90 * 16;
    constexpr int wholeTurn = 360 * 16;
    const qreal inset = m_lineWidth / 2;
    const QRectF circle = boundingRect().adjusted(inset, inset, -inset, -inset);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(m_trackColor, m_lineWidth, Qt::SolidLine, Qt::FlatCap));
    painter->drawEllipse(circle);
    const int turn = qRound(std::clamp(m_progress, 0.0, 1.0) * wholeTurn);
    if (turn > 0) {
        painter->setPen(QPen(m_arcColor, m_lineWidth, Qt::SolidLine, Qt::RoundCap));
        painter->drawArc(circle, top, -turn);
    }
}

} // namespace drossbin
