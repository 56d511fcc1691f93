import QtQuick

/// Says that the selection touches what a browser remembers. It comes in from below and fades.
Item {
    id: warning

    required property bool shown
    property real reveal: warning.shown ? 1 : 0

    implicitHeight: Math.round(content.height * warning.reveal)
    clip: warning.reveal < 1
    visible: warning.reveal > 0

    Behavior on reveal {
        EaseOutMotion {
            duration: Theme.warned
        }
    }

    Rectangle {
        id: content

        width: parent.width
        height: row.height + 2 * Theme.space8
        opacity: warning.reveal
        color: Theme.tinted(Theme.orangeTint, 0.06)

        Row {
            id: row

            anchors.centerIn: parent
            width: Math.min(implicitWidth, parent.width - 2 * Theme.space16)
            spacing: Theme.space8

            Symbol {
                id: symbol

                anchors.verticalCenter: parent.verticalCenter
                name: "exclamationmark.triangle.fill"
                color: Theme.orange
                size: Theme.caption
            }

            PlainLabel {
                width: Math.min(implicitWidth, warning.width - 2 * Theme.space16 - symbol.width - row.spacing)
                text: "Selected items may contain saved passwords, autofill data, and login sessions."
                color: Theme.orange
                font.pixelSize: Theme.caption
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignLeft
            }
        }
    }
}
