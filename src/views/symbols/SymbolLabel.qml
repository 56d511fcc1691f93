import QtQuick

/// A symbol, if any, and a text beside it in the same colour, centred as one.
Item {
    id: both

    required property string text
    required property string symbol
    required property color color
    required property font font

    implicitWidth: row.implicitWidth
    implicitHeight: row.implicitHeight

    Row {
        id: row

        anchors.centerIn: parent
        spacing: Theme.space8

        Symbol {
            visible: both.symbol !== ""
            anchors.verticalCenter: parent.verticalCenter
            name: both.symbol
            color: both.color
            size: Math.round(both.font.pixelSize * 1.15)
            isHeavy: both.font.weight >= Font.DemiBold
        }

        PlainLabel {
            text: both.text
            color: both.color
            font: both.font
            Accessible.ignored: true
        }
    }
}
