import QtQuick
import QtQuick.Templates as T

/// A tooltip over its parent; without a mnemonic or markup of its own. It is never larger than the
/// window: a text that would be loses its middle.
T.ToolTip {
    id: tip

    readonly property real widest: 640
    readonly property int lines: (tip.parent.Window.height - 2 * Theme.space8 - tip.topPadding - tip.bottomPadding) / Theme.lineHeight(Theme.caption2)
    /// What all lines hold together; at the end of each, a character may find no place.
    readonly property real capacity: tip.lines * (tip.widest - tip.leftPadding - tip.rightPadding - metrics.maximumCharacterWidth)

    x: (tip.parent.width - tip.implicitWidth) / 2
    y: tip.parent.height + Theme.space4
    implicitWidth: Math.min(implicitContentWidth + tip.leftPadding + tip.rightPadding, tip.widest)
    implicitHeight: implicitContentHeight + tip.topPadding + tip.bottomPadding
    margins: Theme.space8
    horizontalPadding: Theme.space8
    verticalPadding: Theme.space4
    delay: 700
    closePolicy: T.Popup.NoAutoClose

    FontMetrics {
        id: metrics

        font.pixelSize: Theme.caption2
    }

    contentItem: PlainLabel {
        text: metrics.elidedText(tip.text, Qt.ElideMiddle, tip.capacity)
        font: metrics.font
        color: Theme.bright
        wrapMode: Text.WrapAnywhere
        maximumLineCount: tip.lines
    }

    background: Rectangle {
        radius: 6
        color: Theme.tooltip
        border.width: 1
        border.color: Qt.rgba(1, 1, 1, 0.12)
    }
}
