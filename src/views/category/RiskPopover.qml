import QtQuick
import QtQuick.Templates as T

/// Says why an item carries its risk. It stands below the button that asked, or above it where the
/// window ends, and points at it.
T.Popup {
    id: popover

    required property T.Control opener
    required property string riskColor
    required property string riskLabel
    required property string riskSymbol
    required property string note
    readonly property real arrow: Theme.space8
    /// From the button's middle, past its symbol and the arrow.
    readonly property real distance: Theme.space12 + popover.arrow
    readonly property real middle: popover.opener.height / 2
    readonly property real room: popover.opener.Window.height - popover.opener.mapToItem(null, 0, popover.middle).y
    readonly property bool isAbove: popover.room < popover.distance + popover.implicitHeight + popover.margins

    parent: popover.opener
    x: Math.round((popover.opener.width - popover.width) / 2)
    y: Math.round(popover.middle + (popover.isAbove ? -popover.distance - popover.height : popover.distance))
    width: 280
    padding: Theme.space16
    margins: Theme.space8
    focus: true
    // The button closes it by itself.
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent
    implicitHeight: implicitContentHeight + topPadding + bottomPadding

    // What Qt puts around the content is a dialog too, but one without a name.
    Component.onCompleted: popover.contentItem.parent.Accessible.ignored = true

    background: PointedPanel {
        arrow: popover.arrow
        aim: popover.opener.width / 2 - popover.x
        isAbove: popover.isAbove
    }

    contentItem: FocusScope {
        implicitHeight: childrenRect.height
        focus: true
        LayoutMirroring.enabled: popover.opener.mirrored
        LayoutMirroring.childrenInherit: true
        Accessible.role: Accessible.Dialog
        Accessible.name: popover.riskLabel
        Accessible.description: popover.note
        Keys.onSpacePressed: popover.close()
        Keys.onReturnPressed: popover.close()
        Keys.onEnterPressed: popover.close()

        Column {
            width: parent.width
            spacing: Theme.space8

            Row {
                width: parent.width
                spacing: Theme.space8

                Symbol {
                    anchors.verticalCenter: parent.verticalCenter
                    name: popover.riskSymbol
                    color: Theme.shade(popover.riskColor)
                    size: Theme.space16
                }

                PlainLabel {
                    anchors.verticalCenter: parent.verticalCenter
                    text: popover.riskLabel
                    font.pixelSize: Theme.headline
                    font.weight: Font.DemiBold
                }
            }

            PlainLabel {
                width: parent.width
                text: popover.note
                color: Theme.secondary
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignLeft
            }
        }
    }
}
