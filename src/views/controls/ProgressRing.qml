import QtQuick
import Drossbin.Views

/// A ring that fills clockwise from its top; what it holds stands in its middle.
FocusScope {
    id: ring

    required property real progress
    required property string name
    property real lineWidth: 6
    /// Whether a glow on the track comes and goes: it shows that the work goes on while its progress
    /// stands still.
    property bool isGlowing: false
    default property alias content: middle.data

    /// A new run starts with an empty ring; it does not unwind the last one.
    function follow(): void {
        motion.stop();
        motion.to = ring.progress;
        if (ring.progress < arc.progress)
            arc.progress = ring.progress;
        else
            motion.start();
    }

    implicitWidth: 140
    implicitHeight: 140
    onProgressChanged: ring.follow()

    ProgressArc {
        id: arc

        anchors.fill: parent
        lineWidth: ring.lineWidth
        trackColor: Theme.quaternary
        arcColor: Theme.blue
        Component.onCompleted: arc.progress = ring.progress
    }

    ProgressArc {
        id: glow

        anchors.fill: parent
        visible: ring.isGlowing
        opacity: 0
        lineWidth: ring.lineWidth
        trackColor: Theme.blue
    }

    Pulse {
        item: glow
        rest: 0
        peak: 0.4
    }

    AccessItem {
        anchors.fill: parent
        focus: true
        value: ring.progress
        Accessible.role: Accessible.ProgressBar
        Accessible.name: ring.name
    }

    EaseInOutMotion {
        id: motion

        target: arc
        property: "progress"
        duration: Theme.progressed
    }

    Item {
        id: middle

        anchors.centerIn: parent
        width: childrenRect.width
        height: childrenRect.height
    }
}
