import QtQuick

/// The small coloured capsule that names an item's risk.
Rectangle {
    id: badge

    required property string riskColor
    required property string riskLabel
    required property string riskSymbol
    /// Without it the symbol stands alone.
    property bool showsLabel: true
    /// How wide it is without its label.
    readonly property real narrowest: symbol.width + 2 * Theme.space8

    implicitWidth: content.implicitWidth + 2 * Theme.space8
    implicitHeight: words.implicitHeight + 2 * Theme.space3
    radius: height / 2
    color: Theme.tinted(Theme.riskTint(badge.riskColor), 0.15)
    Accessible.role: Accessible.StaticText
    Accessible.name: badge.riskLabel
    Accessible.ignored: badge.showsLabel

    Row {
        id: content

        anchors.centerIn: parent
        spacing: Theme.space3

        Symbol {
            id: symbol

            anchors.verticalCenter: parent.verticalCenter
            name: badge.riskSymbol
            color: Theme.shade(badge.riskColor)
            size: Theme.caption2
        }

        PlainLabel {
            id: words

            visible: badge.showsLabel
            anchors.verticalCenter: parent.verticalCenter
            text: badge.riskLabel
            color: Theme.shade(badge.riskColor)
            font.pixelSize: Theme.caption2
        }
    }
}
