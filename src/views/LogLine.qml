import QtQuick

/// What became of one item, however long that is: why it failed stands at the end. Failures are red.
Item {
    id: line

    required property string text
    required property bool isSuccess

    implicitHeight: label.implicitHeight + Theme.space8
    Accessible.role: Accessible.ListItem
    Accessible.name: line.text

    PlainLabel {
        id: label

        anchors {
            left: parent.left
            right: parent.right
            leftMargin: Theme.space12
            rightMargin: Theme.space12
            verticalCenter: parent.verticalCenter
        }
        text: line.text
        color: line.isSuccess ? Theme.label : Theme.red
        font.pixelSize: Theme.caption
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignLeft
    }
}
