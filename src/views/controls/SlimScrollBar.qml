import QtQuick
import QtQuick.Templates as T

/// A scroll bar without arrows or trough, shown while there is something to scroll to.
T.ScrollBar {
    id: bar

    implicitWidth: 8
    padding: Theme.space2
    minimumSize: 0.06
    hoverEnabled: true
    visible: bar.size < 1
    Accessible.ignored: true

    contentItem: Rectangle {
        radius: width / 2
        color: Theme.label
        opacity: bar.pressed ? 0.55 : bar.hovered ? 0.45 : 0.3
    }
}
