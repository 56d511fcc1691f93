import QtQuick
import Drossbin.Views

/// Takes an item's opacity from rest to its peak and back, for as long as somebody can see the item.
SequentialAnimation {
    id: pulse

    required property Item item
    required property real rest
    required property real peak
    readonly property WindowVisibility exposure: WindowVisibility {
        window: pulse.item.Window.window
    }

    running: pulse.exposure.isSeen && pulse.item.visible && Theme.animated
    loops: Animation.Infinite
    onStopped: pulse.item.opacity = pulse.rest

    EaseInOutMotion {
        target: pulse.item
        property: "opacity"
        to: pulse.peak
        duration: Theme.breathed
    }

    EaseInOutMotion {
        target: pulse.item
        property: "opacity"
        to: pulse.rest
        duration: Theme.breathed
    }
}
