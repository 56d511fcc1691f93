import QtQuick
import QtQuick.Templates as T

/// A tooltip over its parent; without a mnemonic or markup of its own. It is never larger than the
/// window: a text that would be loses its middle.
T.ToolTip {
    id: tip

    /// What it is about, in the parent: it stands below, or above it where the window ends.
    property rect place: Qt.rect(0, 0, tip.parent.width, tip.parent.height)
    property real widest: Theme.tipWidth
    property int wrapMode: Text.WrapAnywhere
    readonly property int lines: (tip.parent.Window.height - 2 * Theme.space8 - tip.topPadding - tip.bottomPadding) / Theme.lineHeight(Theme.caption2)
    /// What all lines hold together; at the end of each, a character may find no place.
    readonly property real capacity: tip.lines * (tip.widest - tip.leftPadding - tip.rightPadding - metrics.maximumCharacterWidth)
    readonly property real lower: tip.place.y + tip.place.height + Theme.space4
    // Looked at when it appears.
    readonly property bool isAbove: tip.visible && tip.parent.mapToItem(null, 0, tip.lower + tip.implicitHeight + tip.margins).y > tip.parent.Window.height

    x: tip.place.x + (tip.place.width - tip.implicitWidth) / 2
    y: tip.isAbove ? tip.place.y - tip.implicitHeight - Theme.space4 : tip.lower
    implicitWidth: Math.min(implicitContentWidth + tip.leftPadding + tip.rightPadding, tip.widest)
    implicitHeight: implicitContentHeight + tip.topPadding + tip.bottomPadding
    margins: Theme.space8
    horizontalPadding: Theme.space8
    verticalPadding: Theme.space4
    delay: Theme.rested
    closePolicy: T.Popup.NoAutoClose

    FontMetrics {
        id: metrics

        font.pixelSize: Theme.caption2
    }

    contentItem: PlainLabel {
        text: metrics.elidedText(tip.text, Qt.ElideMiddle, tip.capacity)
        font: metrics.font
        color: Theme.bright
        wrapMode: tip.wrapMode
        maximumLineCount: tip.lines
    }

    background: Rectangle {
        radius: Theme.cornerSmall
        color: Theme.tooltip
        border.width: 1
        border.color: Theme.tooltipEdge
    }
}
