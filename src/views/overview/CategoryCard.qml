pragma ComponentBehavior: Bound

import QtQuick

/// One category on the overview: a press opens its list.
PressButton {
    id: card

    required property string name
    required property string subtitle
    required property string countText
    required property string sizeText
    required property string caption
    required property string symbol

    /// The category's symbol and how many items it has.
    component Heading: Item {
        id: heading

        required property string symbol
        required property string countText

        implicitHeight: Math.max(sign.height, capsule.height)

        Symbol {
            id: sign

            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            name: heading.symbol
            size: Theme.title2
            color: Theme.blue
        }

        Rectangle {
            id: capsule

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: count.width + 2 * Theme.space8
            height: count.height + 2 * Theme.space2
            radius: height / 2
            color: Theme.tinted(Theme.blue, 0.1)

            PlainLabel {
                id: count

                anchors.centerIn: parent
                text: heading.countText
                font.pixelSize: Theme.caption
            }
        }
    }

    implicitWidth: 200
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: Theme.space16
    label: card.name
    Accessible.description: card.caption

    background: Rectangle {
        radius: Theme.cornerLarge
        color: card.down ? Theme.materialPressed : card.hovered ? Theme.materialHovered : Theme.material
        border.width: 1
        border.color: Theme.divider

        FocusRing {
            visible: card.visualFocus
            corner: Theme.cornerLarge
        }
    }

    contentItem: Column {
        spacing: Theme.space8

        Heading {
            width: parent.width
            symbol: card.symbol
            countText: card.countText
        }

        PlainLabel {
            width: parent.width
            text: card.name
            font.pixelSize: Theme.headline
            font.weight: Font.DemiBold
            horizontalAlignment: Text.AlignLeft
            elide: Text.ElideRight
        }

        PlainLabel {
            // In the narrowest card the longest needs some of the room beside it.
            x: card.mirrored ? -Theme.space8 : 0
            width: parent.width + Theme.space8
            text: card.subtitle
            font.pixelSize: Theme.caption
            color: Theme.secondary
            horizontalAlignment: Text.AlignLeft
            elide: Text.ElideRight
        }

        PlainLabel {
            width: parent.width
            text: card.sizeText
            font.pixelSize: Theme.title3
            font.weight: Font.Bold
            horizontalAlignment: Text.AlignLeft
        }
    }
}
