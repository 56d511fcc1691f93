pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

/// A modal sheet that comes down over the dimmed window and leaves again. It holds the focus while
/// it is up and gives it back. Only its owner closes it, by `shown`; Escape is passed on.
T.Popup {
    id: sheet

    required property bool shown
    required property string name
    /// What a screen reader says after the name, if anything.
    property string description: ""
    readonly property int restingY: Math.round((sheet.parent.height - sheet.height) / 2)
    /// How far above its place it still is.
    property real drop: 0
    property T.Control focusedBefore: null
    property bool ringedBefore: false

    signal escaped

    parent: T.Overlay.overlay
    x: Math.round((sheet.parent.width - sheet.width) / 2)
    y: sheet.restingY - sheet.drop
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    modal: true
    focus: true
    closePolicy: T.Popup.NoAutoClose
    visible: sheet.shown
    // What Qt puts around the content is a dialog too, but one without a name.
    Component.onCompleted: sheet.contentItem.parent.Accessible.ignored = true
    onAboutToShow: {
        sheet.focusedBefore = sheet.parent.Window.activeFocusItem as T.Control;
        sheet.ringedBefore = sheet.focusedBefore?.visualFocus ?? false;
    }
    // The window gives the focus back, but without the ring that showed it.
    onClosed: if (sheet.ringedBefore && sheet.focusedBefore?.activeFocus)
        sheet.focusedBefore.focusReason = Qt.TabFocusReason

    contentItem: FocusScope {
        implicitWidth: childrenRect.width
        implicitHeight: childrenRect.height
        focus: true
        // A popup is no child of the window's mirrored content.
        LayoutMirroring.enabled: Theme.mirrored
        LayoutMirroring.childrenInherit: true
        Accessible.role: Accessible.Dialog
        Accessible.name: sheet.name
        Accessible.description: sheet.description
        Keys.onEscapePressed: sheet.escaped()
    }

    background: Rectangle {
        color: Theme.sheet
        radius: 12
        border.width: 1
        border.color: Theme.outline
    }

    T.Overlay.modal: Rectangle {
        color: Theme.dim

        Behavior on opacity {
            NumberAnimation {
                duration: Theme.sprung
            }
        }
    }

    enter: Transition {
        SpringMotion {
            property: "drop"
            from: 64
            to: 0
        }

        NumberAnimation {
            property: "opacity"
            from: 0
            to: 1
            duration: Theme.pressed
        }
    }

    exit: Transition {
        NumberAnimation {
            property: "opacity"
            to: 0
            duration: Theme.pressed
        }
    }
}
