#pragma once

#include <QColor>
#include <QImage>
#include <QString>

namespace drossbin {

/// How large a symbol is drawn that has `room` pixels of the screen. The icons are made for a grid
/// of 16, on whose multiples their lines fill whole pixels: one of those, where that is at most an
/// eighth smaller and the lines are so thin that it matters; otherwise all the room.
int symbolPixels(int room);

/// The symbol named as on macOS, in one colour, from the icons built into the program, with strokes
/// as wide as those of regular letters or of semibold ones; a null image for a name without an
/// icon.
QImage drawSymbol(const QString& name, const QColor& color, bool isHeavy, int pixels);

} // namespace drossbin
