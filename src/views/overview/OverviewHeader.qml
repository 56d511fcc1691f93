import QtQuick

/// The sum of what was found, and the two buttons that act on all of it. It is always high enough
/// for both, so that the first stays under the pointer when the second appears.
Item {
    id: header

    required property string totalSummary
    required property bool hasSelection
    required property string deleteLabel
    readonly property Item first: select

    signal smartSelect
    signal deletionRequested

    implicitHeight: Math.max(titles.y + titles.height, buttons.y + 2 * select.implicitHeight + buttons.spacing) + Theme.space16

    Column {
        id: titles

        anchors.left: parent.left
        anchors.leftMargin: Theme.space16
        anchors.right: buttons.left
        anchors.rightMargin: Theme.space16
        anchors.top: parent.top
        anchors.topMargin: Theme.topRoom(title.height)
        spacing: Theme.space4

        PlainLabel {
            id: title

            width: parent.width
            text: "Drossbin"
            font.pixelSize: Theme.largeTitle
            font.weight: Font.Bold
            horizontalAlignment: Text.AlignLeft
        }

        PlainLabel {
            width: parent.width
            text: header.totalSummary
            color: Theme.secondary
            horizontalAlignment: Text.AlignLeft
            wrapMode: Text.Wrap
        }
    }

    Column {
        id: buttons

        anchors.right: parent.right
        anchors.rightMargin: Theme.space16
        anchors.top: parent.top
        anchors.topMargin: Theme.topRoom(select.height)
        width: Math.max(select.implicitWidth, remove.visible ? remove.implicitWidth : 0)
        spacing: Theme.space8

        PillButton {
            id: select

            anchors.right: parent.right
            label: "Smart Select"
            symbol: "wand.and.stars"
            hint: "Select all items marked as safe to delete"
            onClicked: header.smartSelect()
        }

        DeleteButton {
            id: remove

            anchors.right: parent.right
            visible: header.hasSelection
            label: header.deleteLabel
            onClicked: header.deletionRequested()
        }
    }
}
