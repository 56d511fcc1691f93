import QtQuick
import QtQuick.Templates as T
import Drossbin.Views

/// What every button here does, whatever it looks like: the pointer, Space, Return and a screen
/// reader press it alike.
T.AbstractButton {
    id: button

    /// Not the template's `text`, in which an "&" would name a shortcut.
    required property string label

    function press(): void {
        if (button.enabled)
            button.clicked();
    }

    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    Keys.onReturnPressed: button.press()
    Keys.onEnterPressed: button.press()
    Accessible.role: Accessible.Button
    Accessible.name: button.label
    Accessible.ignored: !button.enabled
    // Qt 6.4 leaves what a screen reader asks of a template without an effect.
    Accessible.onPressAction: button.press()

    AccessItem {
        anchors.fill: parent
        Accessible.ignored: button.enabled
        Accessible.role: Accessible.Button
        Accessible.name: button.label
    }
}
