import QtQuick

/// What may be lost with a browser's data, in the sheet that asks for the deletion.
Rectangle {
    id: box

    implicitHeight: texts.height + 2 * Theme.space12
    radius: Theme.corner
    color: Theme.tinted(Theme.orangeTint, 0.08)
    border.width: 1
    border.color: Theme.alertEdge

    Symbol {
        id: symbol

        anchors {
            left: parent.left
            top: parent.top
            margins: Theme.space12
        }
        name: "exclamationmark.triangle.fill"
        color: Theme.orange
        size: Theme.body
    }

    Column {
        id: texts

        anchors {
            left: symbol.right
            right: parent.right
            top: parent.top
            margins: Theme.space12
            leftMargin: Theme.space8
        }
        spacing: Theme.space4

        PlainLabel {
            width: parent.width
            text: "Browser data selected"
            font.pixelSize: Theme.headline
            font.weight: Font.DemiBold
            horizontalAlignment: Text.AlignLeft
        }

        PlainLabel {
            width: parent.width
            text: "Deleting browser caches may remove saved passwords, autofill data, and login sessions. Make sure your passwords are backed up or synced before proceeding."
            color: Theme.secondary
            font.pixelSize: Theme.caption
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignLeft
        }
    }
}
