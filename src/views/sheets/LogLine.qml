import QtQuick

/// What became of one item, however long that is: why it failed stands at the end. Failures are red.
/// All lines of a log are equally far apart, so that one always sees where it is cut.
Item {
    id: line

    required property string text
    required property bool isSuccess

    implicitHeight: label.lineCount * Theme.logPitch
    Accessible.role: Accessible.ListItem
    Accessible.name: line.text

    PlainLabel {
        id: label

        anchors {
            left: parent.left
            right: parent.right
            leftMargin: Theme.space12
            rightMargin: Theme.space12
        }
        // In the middle of its lines: what they are higher than the text is below each.
        y: (Theme.logPitch - metrics.height) / 2
        lineHeight: Theme.logPitch
        lineHeightMode: Text.FixedHeight
        text: line.text
        color: line.isSuccess ? Theme.label : Theme.red
        font.pixelSize: Theme.caption
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignLeft
    }

    FontMetrics {
        id: metrics

        font: label.font
    }
}
