import QtQuick
import Drossbin.Views

/// A tip on its parent while it is asked for, until something is pressed.
Item {
    id: hint

    required property string text
    /// Whether the pointer or the keyboard rests on what it is about.
    required property bool isAsked
    property bool isAnswered: false
    /// What it is about, in the parent.
    property rect place: Qt.rect(0, 0, hint.parent.width, hint.parent.height)
    property real widest: Theme.hintWidth
    property int wrapMode: Text.Wrap
    readonly property Tip tip: made.item as Tip

    onIsAskedChanged: hint.isAnswered = false

    // Made when asked for: a popup in each row would slow scrolling down.
    Loader {
        id: made

        active: hint.isAsked && !hint.isAnswered && hint.text !== ""
        // Not by a value of the tip: that would come before the delay's.
        onLoaded: hint.tip.open()
        // Qt 6.4 cannot load a bound component.
        // qmllint disable unqualified
        sourceComponent: Tip {
            parent: hint.parent
            text: hint.text
            place: hint.place
            widest: hint.widest
            wrapMode: hint.wrapMode
        }
        // qmllint enable unqualified
    }

    Connections {
        target: hint.isAsked ? LastPress : null

        function onPressed() {
            // At once: the press may be for what it covers.
            hint.tip?.close();
            hint.isAnswered = true;
        }
    }
}
