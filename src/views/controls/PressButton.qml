import QtQuick
import QtQuick.Templates as T
import Drossbin.Views

/// What every button here does, whatever it looks like: the pointer, Space, Return and a screen
/// reader press it alike, and when the pointer or the keyboard rests on it, it says what it does.
/// One that is not shown cannot be pressed.
T.AbstractButton {
    id: button

    /// Not the template's `text`, in which an "&" would name a shortcut.
    required property string label
    property string hint: ""

    function press(): void {
        if (button.enabled)
            button.clicked();
    }

    enabled: button.visible
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    // A key shows where it goes, also where the window brought the focus.
    Keys.onPressed: event => {
        const isReturn = event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
        if (isReturn || [Qt.Key_Space, Qt.Key_Tab, Qt.Key_Backtab].includes(event.key))
            button.focusReason = Qt.TabFocusReason;
        if (isReturn)
            button.press();
        event.accepted = isReturn;
    }
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
        isPointedAt: button.hovered
        isFocused: button.visualFocus
    }
}
