pragma ComponentBehavior: Bound

import QtQuick

/// A soft shadow below its parent, which has to be opaque: faint shapes, each a little larger than
/// the one upon it.
Item {
    id: shadow

    required property real corner

    anchors.fill: parent
    anchors.topMargin: Theme.shadowDrop
    anchors.bottomMargin: -Theme.shadowDrop
    z: -1

    Repeater {
        model: Theme.shadowSpread / Theme.shadowStep

        Rectangle {
            required property int index
            readonly property real reach: (index + 1) * Theme.shadowStep

            anchors.fill: parent
            anchors.margins: -reach
            radius: shadow.corner + reach
            color: Theme.shadow
        }
    }
}
