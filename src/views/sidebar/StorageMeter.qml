import QtQuick

/// How much was found or, once something is selected, would come back, set against the disk.
Column {
    id: meter

    /// A bar that is as wide as its amount is beside the disk. It can be wider than the track that it
    /// lies in, for what is found may be more than the disk holds; none of that is drawn. One that is
    /// too narrow for both of its round ends is the start of a wider one, so that it keeps to the
    /// round end of the track.
    component Bar: Item {
        id: bar

        required property real share
        required property color color

        anchors.left: parent.left
        width: Math.max(4, bar.share * bar.parent.width)
        height: bar.parent.height
        clip: bar.width < bar.height

        Rectangle {
            anchors.left: parent.left
            width: Math.max(bar.height, Math.min(bar.width, bar.parent.width))
            height: parent.height
            radius: height / 2
            color: bar.color
        }
    }

    required property string caption
    required property string sizeText
    required property bool isReclaiming
    required property real foundShare
    required property real selectedShare

    spacing: Theme.space8

    Column {
        width: parent.width
        spacing: Theme.space2

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
        radius: height / 2
        color: Theme.quaternary
        border.width: 1
        border.color: Theme.divider

        Bar {
            share: meter.foundShare
            color: Theme.tinted(Theme.blue, 0.2)
        }

        Bar {
            visible: meter.isReclaiming
            share: meter.selectedShare
            color: Theme.blue

            Behavior on share {
                SpringMotion {}
            }
        }
    }
}
