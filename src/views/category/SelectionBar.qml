import QtQuick
import QtQuick.Layouts

/// What ends a selection, wherever its items lie: clearing it or asking for its deletion.
ColumnLayout {
    id: bar

    required property string summary
    required property bool hasBrowserData

    signal clearPressed
    signal deletePressed

    spacing: 0

    SelectionWarning {
        Layout.fillWidth: true
        shown: bar.hasBrowserData
    }

    // Where one line is too short for all, the summary has a line of its own; where that of the buttons
    // is too short as well, they get narrower.
    GridLayout {
        id: line

        readonly property bool isWide: summary.implicitWidth + buttons.implicitWidth + columnSpacing + 2 * Theme.space16 <= bar.width

        Layout.fillWidth: true
        Layout.margins: Theme.space12
        Layout.leftMargin: Theme.space16
        Layout.rightMargin: Theme.space16
        columns: line.isWide ? 2 : 1
        columnSpacing: Theme.space16
        rowSpacing: Theme.space8

        PlainLabel {
            id: summary

            Layout.fillWidth: true
            text: bar.summary
            color: Theme.secondary
            font.pixelSize: Theme.caption
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
        }

        RowLayout {
            id: buttons

            Layout.alignment: Qt.AlignRight
            Layout.fillWidth: !line.isWide
            Layout.maximumWidth: buttons.implicitWidth
            spacing: Theme.space16

            PillButton {
                Layout.fillWidth: !line.isWide
                Layout.maximumWidth: Math.ceil(implicitWidth)
                label: "Clear Selection"
                hint: "Deselects every item of every category"
                variant: "secondary"
                onClicked: bar.clearPressed()
            }

            DeleteButton {
                Layout.fillWidth: !line.isWide
                Layout.maximumWidth: Math.ceil(implicitWidth)
                label: "Delete Selected"
                onClicked: bar.deletePressed()
            }
        }
    }
}
