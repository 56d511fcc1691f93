pragma ComponentBehavior: Bound

import QtQuick

/// The two columns: the sidebar under its toolbar, and the detail beside it.
FocusScope {
    id: shell

    required property bool canScan
    property alias sidebar: sidebarArea.data
    default property alias detail: detailArea.data
    readonly property Scene shown: Array.from(detailArea.children).find(child => child.visible) as Scene
    /// What the keyboard was in is gone: then a scope has it, and no control.
    readonly property bool isLost: shell.activeFocus && shell.Window.activeFocusItem instanceof FocusScope

    signal scan
    signal escaped

    /// Leaves the keyboard where it is, unless that is gone.
    function keepFocus(): void {
        if (shell.isLost)
            shell.shown?.enter();
    }

    focus: true
    onIsLostChanged: whenAllIsShown.restart()
    onShownChanged: whenAllIsShown.restart()
    Keys.onEscapePressed: shell.escaped()

    Timer {
        id: whenAllIsShown

        interval: 0
        onTriggered: shell.keepFocus()
    }

    Rectangle {
        id: column

        anchors.left: parent.left
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        width: 240
        color: Theme.sidebar

        Item {
            id: toolbar

            anchors.left: parent.left
            anchors.right: parent.right
            height: Theme.topLine

            ToolbarButton {
                anchors.right: parent.right
                anchors.rightMargin: Theme.space8
                anchors.verticalCenter: parent.verticalCenter
                label: "Scan"
                hint: "Scans again; the selection is lost"
                symbol: "arrow.clockwise"
                enabled: visible && shell.canScan
                onClicked: shell.scan()
            }
        }

        Item {
            id: sidebarArea

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: toolbar.bottom
            // Scan leaves room below it, which the smallest window needs.
            anchors.topMargin: -Theme.space20
            anchors.bottom: parent.bottom
        }
    }

    Divider {
        id: line

        anchors.left: column.right
        anchors.top: parent.top
        anchors.bottom: parent.bottom
    }

    Item {
        id: detailArea

        anchors.left: line.right
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: parent.bottom
    }
}
