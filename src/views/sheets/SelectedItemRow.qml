import QtQuick

/// One item that is about to be deleted.
Item {
    id: row

    required property string name
    required property string path
    required property string sizeText
    required property string riskSymbol
    required property string riskColor
    required property string riskLabel

    Accessible.role: Accessible.ListItem
    Accessible.name: row.name
    // The path tells items of one name apart.
    Accessible.description: `${row.riskLabel}, ${row.path}`

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

    FigureLabel {
        id: size

        anchors {
            right: parent.right
            rightMargin: Theme.space12
            verticalCenter: parent.verticalCenter
        }
        figures: row.sizeText
        color: Theme.secondary
    }
}
