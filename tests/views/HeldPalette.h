#pragma once

#include <QGuiApplication>
#include <QObject>
#include <QPalette>

namespace drossbin::test {

/// The desktop's colours, as it changes them while the program runs.
class HeldPalette : public QObject {
    Q_OBJECT

  public:
    Q_INVOKABLE static void setWindow(const QColor& color) {
        QPalette palette = QGuiApplication::palette();
        palette.setColor(QPalette::Window, color);
        QGuiApplication::setPalette(palette);
    }
};

} // namespace drossbin::test
