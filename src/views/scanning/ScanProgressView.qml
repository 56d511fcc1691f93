pragma ComponentBehavior: Bound

import QtQuick

/// How far the scan is, how much it has found, and what it looks at.
Scene {
    id: view

    required property real progress
    required property string bytesFoundText
    required property string currentTask

    first: ring

    Column {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -(tip.height + Theme.space24) / 2
        width: parent.width
        spacing: Theme.space24

        ProgressRing {
            id: ring

            anchors.horizontalCenter: parent.horizontalCenter
            name: "Scanning your Mac..."
            progress: view.progress

            Column {
                spacing: Theme.space4

                RollingText {
                    anchors.horizontalCenter: parent.horizontalCenter
                    text: view.bytesFoundText
                    scale: Math.min(1, 116 / implicitWidth)
                    font.pixelSize: Theme.title
                    font.weight: Font.Bold
                }

                PlainLabel {
                    anchors.horizontalCenter: parent.horizontalCenter
                    text: "found"
                    font.pixelSize: Theme.caption
                    color: Theme.secondary
                }
            }
        }

        Column {
            width: parent.width
            spacing: Theme.space4

            PlainLabel {
                anchors.horizontalCenter: parent.horizontalCenter
                text: "Scanning your Mac..."
                font.pixelSize: Theme.title3
                font.weight: Font.Bold
            }

            FadingLabel {
                width: parent.width
                text: view.currentTask
                font.pixelSize: Theme.caption
                color: Theme.secondary
            }
        }
    }

    ScanningTip {
        id: tip

        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.space24
        width: Math.min(440, parent.width - 2 * Theme.space16)
    }
}
