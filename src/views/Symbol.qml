import QtQuick
import Drossbin.Views

/// A symbol in one colour, drawn anew for each size and scale, so that it is never blurred.
Image {
    id: symbol

    required property string name
    property color color: Theme.label
    property int size: Theme.body
    /// Whether its strokes are as heavy as those of semibold letters.
    property bool isHeavy: false

    source: symbol.name === "" ? "" : Symbols.source(symbol.name, symbol.color, symbol.isHeavy)
    sourceSize.width: symbol.size
    sourceSize.height: symbol.size
    width: symbol.size
    height: symbol.size
    Accessible.ignored: true
}
