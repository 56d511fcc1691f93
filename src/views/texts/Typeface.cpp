#include "views/texts/Typeface.h"

#include <QFont>
#include <QGuiApplication>
#include <QQuickWindow>

namespace drossbin {

void chooseTypeface() {
    QFont font = QGuiApplication::font();
#ifndef Q_OS_MACOS // which has a font made for its screens; this is the closest to it
    font.setFamilies({QStringLiteral("Inter"), font.family()});
#endif
    // Letters have neither coloured edges, which not every renderer can draw, nor are they scaled
    // from one size.
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    QGuiApplication::setFont(font);
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
}

} // namespace drossbin
