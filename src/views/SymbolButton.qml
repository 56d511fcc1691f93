pragma ComponentBehavior: Bound

import QtQuick

/// A plain button that shows nothing but a symbol; its label is for screen readers.
PressButton {
    id: button

    required property string symbol
    property string hint: ""
    property int symbolSize: Theme.space16

    implicitWidth: Theme.space20
    implicitHeight: Theme.space24
    focusPolicy: Qt.TabFocus

    background: Item {
        FocusRing {
            visible: button.visualFocus
            corner: Theme.space4
            gap: -2
        }
    }

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: button.symbol
            color: button.hovered && !button.down ? Theme.label : Theme.secondary
            size: button.symbolSize
        }
    }

    Loader {
        active: button.hint !== "" && button.hovered && !button.down
        sourceComponent: Tip {
            parent: button
            text: button.hint
            visible: true
        }
    }
}
