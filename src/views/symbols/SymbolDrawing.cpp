#include "views/symbols/SymbolDrawing.h"

#include <QColor>
#include <QFile>
#include <QHash>
#include <QPainter>
#include <QPixmapCache>
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
        // The set's own bins have a line in their middle, between two pixels.
        {"trash", {{"bin"}}},
        {"wand.and.stars", {{"magic"}}},
        {"xmark.circle.fill", {{"x-circle-fill"}}},
        {"xmark.octagon.fill", {{"x-octagon-fill"}}},
    };
    return table;
}

/// The icons are outlines of strokes one unit wide, of 16: a rim makes those wider. One that has a
/// heavy twin needs none.
QByteArray drawingOf(const QString& icon, bool isHeavy) {
    QFile twin(QStringLiteral(":/symbols/%1-heavy.svg").arg(icon));
    if (isHeavy && twin.open(QFile::ReadOnly)) {
        return twin.readAll();
    }
    QFile file(QStringLiteral(":/symbols/%1.svg").arg(icon));
    QByteArray drawing = file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    if (isHeavy) {
        drawing.replace("fill=",
                        R"(stroke="#000" stroke-width="0.9" stroke-linejoin="round" fill=)");
        drawing.replace("0 0 16 16", "-0.45 -0.45 16.9 16.9");
    }
    return drawing;
}

void draw(QPainter& painter, const Layer& layer, bool isHeavy, const QSize& size) {
    QSvgRenderer renderer(drawingOf(layer.icon, isHeavy));
    const QRectF place(layer.place.x() * size.width(), layer.place.y() * size.height(),
                       layer.place.width() * size.width(), layer.place.height() * size.height());
    renderer.render(&painter, place);
}

QImage drawn(const QList<Layer>& layers, const QColor& color, bool isHeavy, int size) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    for (const Layer& layer : layers) {
        draw(painter, layer, isHeavy, image.size());
    }
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    return image;
}

} // namespace

int symbolPixels(int room) {
    constexpr int grid = 16;
    constexpr int large = 48;
    const int onGrid = room - room % grid;
    return room < large && onGrid * 8 >= room * 7 ? onGrid : room;
}

QImage drawSymbol(const QString& name, const QColor& color, bool isHeavy, int pixels) {
    const auto layers = symbols().constFind(name);
    if (layers == symbols().constEnd()) {
        return {};
    }
    const QString key = QStringLiteral("symbol/%1/%2/%3/%4")
                            .arg(name, color.name(QColor::HexArgb), isHeavy ? "heavy" : "regular")
                            .arg(pixels);
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = QPixmap::fromImage(drawn(*layers, color, isHeavy, pixels));
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap.toImage();
}

} // namespace drossbin
