import QtQuick

/// Shows where the keyboard is, a little outside of the control that it lies in.
Rectangle {
    id: ring

    property real corner: Theme.corner
    property real gap: 2

    anchors.fill: parent
    anchors.margins: -ring.gap - ring.border.width
    radius: ring.corner + ring.gap + ring.border.width
    color: "transparent"
    border.width: 2
    border.color: Theme.blue
}
