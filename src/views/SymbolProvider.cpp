#include "views/SymbolProvider.h"

#include <QColor>
#include <QFile>
#include <QHash>
#include <QPainter>
#include <QSvgRenderer>

namespace drossbin {
namespace {

/// One icon and where in the symbol's unit square it goes.
struct Layer {
    QString icon;
    QRectF place{0, 0, 1, 1};
};

using Symbols = QHash<QString, QList<Layer>>;

const Symbols& symbols() {
    static const Symbols table{
        {"arrow.clockwise", {{"arrow-clockwise"}}},
        {"arrow.down.circle", {{"arrow-down-circle"}}},
        {"checkmark.circle.fill", {{"check-circle-fill"}}},
        {"circle", {{"circle"}}},
        {"doc.text", {{"file-earmark-text"}}},
        {"exclamationmark.triangle.fill", {{"exclamation-triangle-fill"}}},
        {"info.circle", {{"info-circle"}}},
        {"lightbulb", {{"lightbulb"}}},
        {"magnifyingglass", {{"search"}}},
        {"shippingbox", {{"box-seam"}}},
        // The stars sit in the middle of the lens, which is left of and above the icon's middle.
        {"sparkle.magnifyingglass", {{"search-light"}, {"stars", {0.19, 0.17, 0.44, 0.44}}}},
        {"sparkles", {{"stars"}}},
        {"square.stack.3d.up", {{"layers"}}},
        {"trash", {{"trash3"}}},
        {"wand.and.stars", {{"magic"}}},
        {"xmark.circle.fill", {{"x-circle-fill"}}},
        {"xmark.octagon.fill", {{"x-octagon-fill"}}},
    };
    return table;
}

QByteArray drawingOf(const Layer& layer, bool isHeavy) {
    QFile file(QStringLiteral(":/symbols/%1.svg").arg(layer.icon));
    QByteArray drawing = file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    if (isHeavy) {
        // The icons are outlines of strokes one unit wide, of 16: a rim makes those wider.
        drawing.replace("fill=",
                        R"(stroke="#000" stroke-width="0.9" stroke-linejoin="round" fill=)");
        drawing.replace("0 0 16 16", "-0.45 -0.45 16.9 16.9");
    }
    return drawing;
}

void draw(QPainter& painter, const Layer& layer, bool isHeavy, const QSize& size) {
    QSvgRenderer renderer(drawingOf(layer, isHeavy));
    const QRectF place(layer.place.x() * size.width(), layer.place.y() * size.height(),
                       layer.place.width() * size.width(), layer.place.height() * size.height());
    renderer.render(&painter, place);
}

} // namespace

QImage SymbolProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize) {
    const auto layers = symbols().constFind(id.section('/', 0, 0));
    if (layers == symbols().constEnd()) {
        return {};
    }
    QImage image(requestedSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    for (const Layer& layer : *layers) {
        draw(painter, layer, id.endsWith("/heavy"), requestedSize);
    }
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), QColor('#' + id.section('/', 1, 1)));
    *size = image.size();
    return image;
}

} // namespace drossbin
