import QtQuick

/// A panel that floats and points upwards or downwards at what it is about.
Rectangle {
    id: panel

    /// How far it points out of its edge, and where along it.
    required property real arrow
    required property real aim
    required property bool isAbove

    radius: Theme.cornerMedium
    color: Theme.sheet
    border.width: 1
    border.color: Theme.outline

    SoftShadow {
        corner: panel.radius
    }

    // Half of a square that stands on its corner; it interrupts the outline.
    Item {
        x: panel.aim - panel.arrow
        y: panel.isAbove ? panel.height - 1 : 1 - height
        width: 2 * panel.arrow
        height: panel.arrow + 1
        clip: true

        Rectangle {
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.verticalCenter: panel.isAbove ? parent.top : parent.bottom
            width: Math.SQRT2 * panel.arrow
            height: width
            rotation: 45
            antialiasing: true
            color: panel.color
            border.width: panel.border.width
            border.color: panel.border.color
        }
    }
}
