import QtQuick

/// One item that is about to be deleted.
Item {
    id: row

    required property string name
    required property string sizeText
    required property string riskSymbol
    required property string riskColor
    required property string riskLabel

    implicitHeight: 28
    Accessible.role: Accessible.ListItem
    Accessible.name: row.name
    Accessible.description: row.riskLabel

    Symbol {
        id: symbol

        anchors {
            left: parent.left
            leftMargin: Theme.space12
            verticalCenter: parent.verticalCenter
        }
        name: row.riskSymbol
        color: Theme.shade(row.riskColor)
        size: Theme.body
    }

    PlainLabel {
        anchors {
            left: symbol.right
            right: size.left
            leftMargin: Theme.space8
            rightMargin: Theme.space12
            verticalCenter: parent.verticalCenter
        }
        text: row.name
        elide: Text.ElideMiddle
        horizontalAlignment: Text.AlignLeft
    }

    PlainLabel {
        id: size

        anchors {
            right: parent.right
            rightMargin: Theme.space12
            verticalCenter: parent.verticalCenter
        }
        text: row.sizeText
        color: Theme.secondary
    }
}
