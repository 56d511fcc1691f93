#pragma once

#include <QQuickImageProvider>

namespace drossbin {

/// Draws the symbols named as on macOS from the icons built into the program, in one colour.
/// An id is the name, a slash and the colour as #AARRGGBB without its "#"; "/heavy" after it asks
/// for strokes as heavy as those of semibold letters.
class SymbolProvider : public QQuickImageProvider {
  public:
    SymbolProvider()
        : QQuickImageProvider(QQuickImageProvider::Image) {}

    /// A square image of the size asked for; a null one for a name that has no icon.
    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

} // namespace drossbin
