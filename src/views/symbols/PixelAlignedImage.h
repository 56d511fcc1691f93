#pragma once

#include <QImage>
#include <QSGImageNode>
#include <QSGTransformNode>

#include <memory>

class QQuickWindow;

namespace drossbin {

/// An image whose pixels are pixels of the screen. Its own transform takes it to the nearest whole
/// ones before every frame, for nobody tells an item that one of its ancestors has moved.
class PixelAlignedImage : public QSGTransformNode {
  public:
    explicit PixelAlignedImage(const QQuickWindow& window);

    void show(const QImage& image, const QPointF& center, const QQuickWindow& window);
    void preprocess() override;

  private:
    std::unique_ptr<QSGImageNode> m_image;
    qreal m_ratio = 1;
};

} // namespace drossbin
