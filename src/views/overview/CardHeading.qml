import QtQuick

/// The top of a card: the category's symbol and how many items it has.
Item {
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

    CountCapsule {
        id: capsule

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: heading.countText
    }
}
