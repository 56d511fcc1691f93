#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace drossbin {

/// A ring and, over it, the arc of `progress` (0 to 1) from the top clockwise with round ends.
/// Painted rather than built from shapes: smooth on every renderer without multisampling.
class ProgressArc : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qreal progress MEMBER m_progress NOTIFY changed)
    Q_PROPERTY(qreal lineWidth MEMBER m_lineWidth NOTIFY changed)
    Q_PROPERTY(QColor trackColor MEMBER m_trackColor NOTIFY changed)
    Q_PROPERTY(QColor arcColor MEMBER m_arcColor NOTIFY changed)

  public:
    explicit ProgressArc(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

  signals:
    void changed();

  private:
    qreal m_progress = 0;
    qreal m_lineWidth = 1;
    QColor m_trackColor;
    QColor m_arcColor;
};

} // namespace drossbin
