import QtQuick
import QtQuick.Templates as T
import Drossbin.Views

/// What every button here does, whatever it looks like: the pointer, Space, Return and a screen
/// reader press it alike, and when the pointer or the keyboard rests on it, it says what it does.
T.AbstractButton {
    id: button

    /// Not the template's `text`, in which an "&" would name a shortcut.
    required property string label
    property string hint: ""

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
    Accessible.description: button.hint
    Accessible.ignored: !button.enabled
    // Qt 6.4 leaves what a screen reader asks of a template without an effect.
    Accessible.onPressAction: button.press()

    AccessItem {
        anchors.fill: parent
        Accessible.ignored: button.enabled
        Accessible.role: Accessible.Button
        Accessible.name: button.label
        Accessible.description: button.hint
    }

    Hint {
        text: button.hint
        isAsked: button.hovered || button.visualFocus
    }
}
