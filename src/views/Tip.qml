import QtQuick
import QtQuick.Templates as T

/// A tooltip over its parent; without a mnemonic, markup or width of its own.
T.ToolTip {
    id: tip

    x: (tip.parent.width - tip.implicitWidth) / 2
    y: tip.parent.height + Theme.space4
    implicitWidth: Math.min(implicitContentWidth + tip.leftPadding + tip.rightPadding, 480)
    implicitHeight: implicitContentHeight + tip.topPadding + tip.bottomPadding
    margins: Theme.space8
    horizontalPadding: Theme.space8
    verticalPadding: Theme.space4
    delay: 700
    closePolicy: T.Popup.NoAutoClose

    contentItem: PlainLabel {
        text: tip.text
        font.pixelSize: Theme.caption
        color: Theme.bright
        wrapMode: Text.Wrap
    }

    background: Rectangle {
        radius: 6
        color: "#3a3a3e"
        border.width: 1
        border.color: Qt.rgba(1, 1, 1, 0.12)
    }
}
