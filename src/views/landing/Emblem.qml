import QtQuick

/// The program's sign, which breathes for as long as somebody can see it.
Rectangle {
    id: emblem

    readonly property alias isPulsing: pulse.running

    implicitWidth: 120
    implicitHeight: 120
    radius: height / 2
    color: Theme.tinted(Theme.blue, 0.08)

    Symbol {
        id: sign

        anchors.centerIn: parent
        name: "sparkle.magnifyingglass"
        size: 56
        color: Theme.blue
    }

    Pulse {
        id: pulse

        item: sign
        rest: 1
        peak: 0.45
    }
}
