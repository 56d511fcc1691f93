import QtQuick
import Drossbin.Views

/// A text whose digits are all equally wide, so that sizes under each other line up.
FigureText {
    id: label

    font.pixelSize: Theme.body
    color: Theme.label
    Accessible.role: Accessible.StaticText
    Accessible.name: label.text
}
