pragma ComponentBehavior: Bound

import QtQuick

/// The one look of an action: a capsule that says in its colour what the action means.
PressButton {
    id: button

    /// "primary", "secondary" or "danger".
    property string variant: "primary"
    property string symbol: ""
    readonly property bool isSecondary: button.variant === "secondary"

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    horizontalPadding: Theme.space24
    verticalPadding: Theme.space10
    scale: button.down ? 0.95 : 1

    Behavior on scale {
        EaseOutMotion {
            duration: Theme.pressed
        }
    }

    background: Rectangle {
        radius: height / 2
        color: button.isSecondary ? Theme.secondaryFill : button.variant === "danger" ? Theme.dangerFill : Theme.primaryFill
        border.width: button.isSecondary ? 1 : 0
        border.color: Theme.outline

        Rectangle {
            anchors.fill: parent
            radius: height / 2
            visible: button.hovered && !button.down
            color: button.isSecondary ? Theme.faintHovered : Theme.strongHovered
        }

        FocusRing {
            visible: button.visualFocus
            corner: parent.height / 2
        }
    }

    contentItem: SymbolLabel {
        text: button.label
        symbol: button.symbol
        color: button.isSecondary ? Theme.secondary : Theme.bright
        font: button.font
    }

    font {
        pixelSize: Theme.body
        weight: Font.DemiBold
    }
}
