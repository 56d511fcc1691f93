import QtQuick
import Drossbin.Views

/// A symbol in one colour, drawn for the pixels of its screen, so that it is never blurred.
SymbolItem {
    required name

    color: Theme.label
    size: Theme.body
    Accessible.ignored: true
}
