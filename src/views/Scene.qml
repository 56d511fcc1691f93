import QtQuick
import Drossbin.Views

/// What fills the window or the detail. It reacts to something only while it is shown.
FocusScope {
    id: scene

    /// The control that the keyboard begins at.
    required property Item first
    /// A key shows its place with a ring, the pointer does not.
    readonly property int reason: LastPress.reason

    /// Before the keyboard comes.
    signal entered

    function enter(): void {
        scene.entered();
        scene.first.forceActiveFocus(scene.reason);
    }

    enabled: scene.visible
}
