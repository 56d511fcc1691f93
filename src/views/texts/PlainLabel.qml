import QtQuick

/// A text shown as it is: what comes from the disk is never read as markup, and its lines are equally
/// high in all scripts.
Text {
    id: label

    textFormat: Text.PlainText
    font.pixelSize: Theme.body
    lineHeightMode: Text.FixedHeight
    lineHeight: Theme.lineHeight(label.font.pixelSize)
    color: Theme.label
    Accessible.role: Accessible.StaticText
    Accessible.name: label.text
}
