import QtQuick
import Drossbin.Views

/// A tip on its parent while it is asked for, until something is pressed; the keyboard's goes by
/// itself after a while.
Item {
    id: hint

    required property string text
    /// Whether the pointer or the keyboard rests on what it is about.
    property bool isPointedAt: false
    property bool isFocused: false
    /// The pointer was moved there; it did not rest while this came below it.
    property bool isMeant: false
    readonly property bool isAsked: hint.isFocused || hint.isMeant
    property bool isAnswered: false
    /// What it is about, in the parent.
    property rect place: Qt.rect(0, 0, hint.parent.width, hint.parent.height)
    property real widest: Theme.hintWidth
    property int wrapMode: Text.Wrap
    readonly property Tip tip: made.item as Tip

    /// The pointer is on something else now. Where it is on nothing any more it wants no tip to stay.
    function pointAnew(): void {
        hint.isMeant = hint.isPointedAt && PointerMotion.isUnderWay;
        hint.isAnswered = !hint.isPointedAt;
    }

    onIsPointedAtChanged: hint.pointAnew()
    onIsFocusedChanged: hint.isAnswered = hint.isAnswered && hint.isPointedAt

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
            // It covers what the keyboard may go to next. The pointer has to leave anyway.
            timeout: hint.isMeant ? -1 : Theme.told
            onClosed: hint.isAnswered = true
        }
        // qmllint enable unqualified
    }

    Connections {
        target: hint.isAsked || hint.isPointedAt ? LastPress : null

        function onPressed() {
            // At once: the press may be for what it covers.
            hint.tip?.close();
            hint.isAnswered = true;
        }
    }

    Connections {
        target: PointerMotion
        enabled: hint.isPointedAt && !hint.isMeant

        function onMoved() {
            hint.isMeant = true;
        }
    }
}
