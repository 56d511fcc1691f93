import QtQuick

/// What to know before clearing browser data. Dark in both appearances, for its white words.
Rectangle {
    id: tip

    readonly property string emphasis: "<span style=\"font-weight: 600; color: #ffffff\">browser</span>"
    readonly property string words: "Deleting %1 caches may remove saved passwords and autofill data. We recommend clearing %1 data, specifically, only when needed."

    implicitWidth: 440
    implicitHeight: body.implicitHeight + 2 * Theme.space12
    radius: Theme.cornerMedium
    color: Theme.darkMaterial

    Symbol {
        id: bulb

        anchors.left: parent.left
        anchors.leftMargin: Theme.space20
        anchors.verticalCenter: parent.verticalCenter
        name: "lightbulb"
        size: 16
        color: Theme.brightSecondary
    }

    // The one text with markup: a constant, for the weight and colour of two of its words.
    Text {
        id: body

        anchors.left: bulb.right
        anchors.leftMargin: Theme.space8
        anchors.right: parent.right
        anchors.rightMargin: Theme.space20
        anchors.verticalCenter: parent.verticalCenter
        text: tip.words.replace(/%1/g, tip.emphasis)
        textFormat: Text.RichText
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignLeft
        font.pixelSize: Theme.caption
        color: Theme.brightSecondary
        Accessible.role: Accessible.StaticText
        Accessible.name: tip.words.replace(/%1/g, "browser")
    }
}
