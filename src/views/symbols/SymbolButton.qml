pragma ComponentBehavior: Bound

import QtQuick

/// A plain button that shows nothing but a symbol; its label is for screen readers.
PressButton {
    id: button

    required property string symbol
    /// Whether what it opens is open.
    property bool isOpen: false
    property int symbolSize: Theme.space16

    implicitWidth: Theme.space20
    implicitHeight: Theme.space24
    focusPolicy: Qt.TabFocus

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: button.symbol
            color: button.isOpen ? Theme.blue : button.hovered && !button.down ? Theme.label : Theme.secondary
            size: button.symbolSize

            Rectangle {
                anchors.fill: parent
                anchors.margins: -Theme.space4
                z: -1
                radius: width / 2
                color: Theme.quaternary
                visible: button.isOpen
            }

            FocusRing {
                visible: button.visualFocus
                corner: parent.size / 2
            }
        }
    }
}
