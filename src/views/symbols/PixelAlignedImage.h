#pragma once

#include <QImage>
#include <QQuickPaintedItem>

namespace drossbin {

/// An image in the middle of its parent whose pixels are pixels of the screen. It moves to the
/// nearest whole ones before every frame, for nobody tells an item that one of its ancestors has
/// moved.
class PixelAlignedImage : public QQuickPaintedItem {
    Q_OBJECT

  public:
    explicit PixelAlignedImage(QQuickItem* parent);

    void show(const QImage& image);
    void paint(QPainter* painter) override;

  protected:
    void itemChange(ItemChange change, const ItemChangeData& data) override;

  private:
    void align();

    QImage m_image;
    QMetaObject::Connection m_frames;
};

} // namespace drossbin
