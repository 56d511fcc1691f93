import QtQuick
import Drossbin.Views

/// The program's sign, which breathes for as long as somebody can see it.
Rectangle {
    id: emblem

    readonly property bool isPulsing: exposure.isSeen && emblem.visible && Theme.animated

    implicitWidth: 120
    implicitHeight: 120
    radius: height / 2
    color: Theme.tinted(Theme.blue, 0.08)

    WindowVisibility {
        id: exposure

        window: emblem.Window.window
    }

    Symbol {
        id: sign

        anchors.centerIn: parent
        name: "sparkle.magnifyingglass"
        size: 56
        color: Theme.blue

        SequentialAnimation on opacity {
            loops: Animation.Infinite
            running: emblem.isPulsing
            onStopped: sign.opacity = 1

            EaseInOutMotion {
                to: 0.45
                duration: Theme.breathed
            }

            EaseInOutMotion {
                to: 1
                duration: Theme.breathed
            }
        }
    }
}
