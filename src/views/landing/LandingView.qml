pragma ComponentBehavior: Bound

import QtQuick

/// What the window shows before the first scan.
Scene {
    id: landing

    signal scan

    first: button

    Column {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -(note.height + Theme.space24) / 2
        spacing: Theme.space32

        Emblem {
            anchors.horizontalCenter: parent.horizontalCenter
        }

        Column {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: Theme.space8

            PlainLabel {
                anchors.horizontalCenter: parent.horizontalCenter
                text: "Drossbin"
                font.pixelSize: Theme.largeTitle
                font.weight: Font.Bold
            }

            PlainLabel {
                anchors.horizontalCenter: parent.horizontalCenter
                text: "Free up space by clearing hidden caches,\nbrowser data, and creative app leftovers."
                color: Theme.secondary
                horizontalAlignment: Text.AlignHCenter
                lineHeight: 1.2 * Theme.lineHeight(Theme.body)
            }
        }

        Item {
            anchors.horizontalCenter: parent.horizontalCenter
            width: button.width
            height: button.height
            scale: button.hovered ? 1.03 : 1

            Behavior on scale {
                SpringMotion {}
            }

            // The label brings a padding of its own: 32 and 14, on top of the pill's 24 and 10.
            PillButton {
                id: button

                focus: true
                label: "Start System Scan"
                symbol: "magnifyingglass"
                font.pixelSize: Theme.headline
                horizontalPadding: Theme.space24 + Theme.space32
                verticalPadding: Theme.space24
                onClicked: landing.scan()
            }
        }
    }

    PlainLabel {
        id: note

        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.space24
        text: "Your Mac hasn't been scanned yet"
        font.pixelSize: Theme.caption
        color: Theme.tertiary
    }
}
