import QtQuick

/// A text shown as it is: what comes from the disk is never read as markup.
Text {
    id: label

    textFormat: Text.PlainText
    font.pixelSize: Theme.body
    color: Theme.label
    Accessible.role: Accessible.StaticText
    Accessible.name: label.text
}
