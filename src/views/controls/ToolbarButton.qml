pragma ComponentBehavior: Bound

import QtQuick

/// A button of the toolbar: no face of its own until the pointer is over it.
PressButton {
    id: button

    required property string symbol

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: 32
    horizontalPadding: Theme.space12
    opacity: button.enabled ? 1 : Theme.unavailable

    background: Rectangle {
        radius: Theme.corner
        color: button.down ? Theme.materialPressed : button.hovered ? Theme.materialHovered : "transparent"

        FocusRing {
            visible: button.visualFocus
        }
    }

    contentItem: SymbolLabel {
        text: button.label
        symbol: button.symbol
        color: Theme.label
        font: button.font
    }

    font {
        pixelSize: Theme.body
        weight: Font.Medium
    }
}
