import QtQuick
import QtQuick.Templates as T

/// One category of the sidebar, with what it holds of the items that match the filter.
T.ItemDelegate {
    id: row

    required property string name
    required property string symbol
    required property string caption
    required property bool isCurrent
    /// What else there is to know about it, if anything.
    property string hint: ""

    signal picked
    /// Asked for with Control (Command on macOS) on the row that is picked.
    signal unpicked

    implicitHeight: names.implicitHeight + topPadding + bottomPadding
    focusPolicy: Qt.NoFocus
    verticalPadding: Theme.space2 + Theme.space3
    hoverEnabled: true
    horizontalPadding: Theme.space8
    Keys.onReturnPressed: row.picked()
    Keys.onEnterPressed: row.picked()
    Accessible.role: Accessible.ListItem
    Accessible.name: row.name
    Accessible.description: row.hint === "" ? row.caption : `${row.caption}. ${row.hint}`
    Accessible.selectable: true
    Accessible.selected: row.isCurrent
    Accessible.onPressAction: row.picked()
    onClicked: row.picked()

    background: Rectangle {
        radius: Theme.corner
        color: row.isCurrent ? Theme.picked : row.down ? Theme.materialPressed : row.hovered ? Theme.materialHovered : "transparent"

        FocusRing {
            visible: row.visualFocus
            gap: -2
        }
    }

    Item {
        anchors.fill: parent
        anchors.leftMargin: row.leftPadding
        anchors.rightMargin: row.rightPadding

        SymbolFrame {
            id: frame

            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            name: row.symbol
            color: row.isCurrent ? Theme.blue : Theme.secondary
        }

        Column {
            id: names

            anchors {
                left: frame.right
                right: parent.right
                leftMargin: Theme.space8
                verticalCenter: parent.verticalCenter
            }
            spacing: Theme.space2

            PlainLabel {
                width: parent.width
                text: row.name
                elide: Text.ElideRight
                horizontalAlignment: Text.AlignLeft
            }

            PlainLabel {
                width: parent.width
                text: row.caption
                color: Theme.secondary
                font.pixelSize: Theme.caption
                elide: Text.ElideRight
                horizontalAlignment: Text.AlignLeft
            }
        }
    }

    // The template's click does not say what keys were held.
    MouseArea {
        anchors.fill: parent
        onPressed: event => event.accepted = row.isCurrent && event.modifiers & Qt.ControlModifier
        onClicked: row.unpicked()
    }

    Hint {
        text: row.hint
        isPointedAt: row.hovered
        isFocused: row.visualFocus
    }
}
