import QtQuick

Rectangle {
    id: capsule

    required property string text

    implicitWidth: count.implicitWidth + 2 * Theme.space8
    implicitHeight: count.implicitHeight + 2 * Theme.space2
    radius: height / 2
    color: Theme.tinted(Theme.blue, 0.1)

    PlainLabel {
        id: count

        anchors.centerIn: parent
        text: capsule.text
        font.pixelSize: Theme.caption
    }
}
