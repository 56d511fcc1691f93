pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Drossbin.Views

/// A plain button that shows nothing but a symbol.
T.AbstractButton {
    id: button

    required property string symbol
    required property string name
    property string hint: ""
    property color color: Theme.secondary
    property int symbolSize: Theme.space16

    function press(): void {
        if (button.enabled)
            button.clicked();
    }

    implicitWidth: Theme.space20
    implicitHeight: Theme.space24
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    Keys.onReturnPressed: button.press()
    Keys.onEnterPressed: button.press()
    Accessible.role: Accessible.Button
    Accessible.name: button.name
    Accessible.ignored: !button.enabled
    // Qt 6.4 leaves what a screen reader asks of a template without an effect.
    Accessible.onPressAction: button.press()

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
            color: button.hovered && !button.down ? Theme.label : button.color
            size: button.symbolSize
        }
    }

    AccessItem {
        anchors.fill: parent
        Accessible.ignored: button.enabled
        Accessible.role: Accessible.Button
        Accessible.name: button.name
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
