pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

/// A modal sheet that comes down over the window and leaves upwards again. It holds the focus while
/// it is up and gives it back. Only its owner closes it, by `shown`; Escape is passed on.
T.Popup {
    id: sheet

    required property bool shown
    required property string name
    /// What a screen reader says after the name, if anything.
    property string description: ""
    /// How high its content may be: something of the window is seen all around it.
    readonly property real tallest: sheet.parent.height - 2 * Theme.space16
    /// How much of the way it is away: at 1 it stands right above the window's edge. (Not by `y`:
    /// Qt makes a popup lower where it would reach over the edge.)
    property real away: 0
    readonly property real rise: Math.round(sheet.away * (sheet.y + sheet.height))

    signal escaped

    parent: T.Overlay.overlay
    x: Math.round((sheet.parent.width - sheet.width) / 2)
    y: Math.round((sheet.parent.height - sheet.height) / 2)
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    modal: true
    // One dim lies below all sheets: each its own would flash where one follows another.
    dim: false
    focus: true
    closePolicy: T.Popup.NoAutoClose
    visible: sheet.shown
    // What Qt puts around the content is a dialog too, but one without a name.
    Component.onCompleted: sheet.contentItem.parent.Accessible.ignored = true

    contentItem: FocusScope {
        implicitWidth: childrenRect.width
        implicitHeight: childrenRect.height
        transform: Translate { y: -sheet.rise }
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
        transform: Translate { y: -sheet.rise }
        color: Theme.sheet
        radius: Theme.cornerLarge
        border.width: 1
        border.color: Theme.outline

        SoftShadow {
            corner: parent.radius
        }
    }

    enter: Transition {
        SpringMotion {
            property: "away"
            from: 1
            to: 0
        }
    }

    exit: Transition {
        EaseInOutMotion {
            property: "away"
            to: 1
            duration: Theme.left
        }
    }
}
