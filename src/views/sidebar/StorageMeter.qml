import QtQuick

/// How much was found or, once something is selected, would come back, set against the disk.
Column {
    id: meter

    required property string caption
    required property string sizeText
    required property bool isReclaiming
    required property real foundShare
    required property real selectedShare

    function barWidth(share: real): real {
        return Math.max(4, share * track.width);
    }

    spacing: 8

    Column {
        width: parent.width
        spacing: 2

        PlainLabel {
            anchors.left: parent.left
            text: meter.caption
            color: Theme.secondary
            font.pixelSize: Theme.caption
        }

        RollingText {
            anchors.left: parent.left
            text: meter.sizeText
            tabular: false
            rolls: meter.isReclaiming
            color: meter.isReclaiming ? Theme.blue : Theme.label
            font.pixelSize: Theme.title2
            font.weight: Font.Bold
        }
    }

    Rectangle {
        id: track

        width: parent.width
        height: 8
        radius: 4
        color: Theme.quaternary
        border.width: 1
        border.color: Theme.divider

        MeterBar {
            width: meter.barWidth(meter.foundShare)
            color: Theme.tinted(Theme.blue, 0.2)
        }

        MeterBar {
            property real share: meter.selectedShare

            visible: meter.isReclaiming
            width: meter.barWidth(share)
            color: Theme.blue

            Behavior on share {
                SpringMotion {}
            }
        }
    }
}
