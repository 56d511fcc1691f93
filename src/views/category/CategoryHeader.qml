import QtQuick
import QtQuick.Layouts

/// Which category is shown, and how much it holds.
ColumnLayout {
    id: header

    required property string name
    required property string icon
    required property string subtitle
    required property string sizeText
    readonly property real firstLine: line.implicitHeight

    spacing: Theme.space4

    Row {
        id: line

        spacing: Theme.space8

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: header.icon
            color: Theme.blue
            size: Theme.title2
            isHeavy: true
        }

        PlainLabel {
            id: title

            anchors.verticalCenter: parent.verticalCenter
            text: header.name
            font.pixelSize: Theme.title2
            font.weight: Font.Bold
        }

        PlainLabel {
            anchors.baseline: title.baseline
            text: header.subtitle
            color: Theme.secondary
            font.pixelSize: Theme.caption
        }
    }

    PlainLabel {
        text: header.sizeText
        color: Theme.secondary
        font.pixelSize: Theme.title3
    }
}
