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

    implicitWidth: 200
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: Theme.space16
    label: card.name
    Accessible.description: card.caption

    background: Rectangle {
        radius: 12
        color: card.down ? Theme.materialPressed : card.hovered ? Theme.materialHovered : Theme.material
        border.width: 1
        border.color: Theme.divider

        FocusRing {
            visible: card.visualFocus
            corner: 12
        }
    }

    contentItem: Column {
        spacing: Theme.space8

        CardHeading {
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
            width: parent.width
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
