import QtQuick
import QtQuick.Templates as T

/// Says why an item carries its risk, next to the button that asked; gives it the focus back.
T.Popup {
    id: popover

    required property T.Control opener
    required property string riskColor
    required property string riskLabel
    required property string riskSymbol
    required property string note
    readonly property real room: popover.opener.mapToItem(null, 0, 0).y
    /// Above the button, or below it where the window leaves no room above.
    readonly property bool isAbove: popover.room >= popover.implicitHeight + Theme.space16

    parent: popover.opener
    x: Math.round((popover.opener.width - popover.width) / 2)
    y: popover.isAbove ? -popover.height - Theme.space4 : popover.opener.height + Theme.space4
    width: 280
    padding: 16
    margins: Theme.space8
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    implicitHeight: implicitContentHeight + topPadding + bottomPadding

    // What Qt puts around the content is a dialog too, but one without a name.
    Component.onCompleted: popover.contentItem.parent.Accessible.ignored = true

    background: Rectangle {
        radius: 10
        color: Theme.sheet
        border.width: 1
        border.color: Theme.outline
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
