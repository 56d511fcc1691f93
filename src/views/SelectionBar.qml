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

    BrowserWarning {
        Layout.fillWidth: true
        shown: bar.hasBrowserData
    }

    RowLayout {
        Layout.fillWidth: true
        Layout.margins: 12
        Layout.leftMargin: Theme.space16
        Layout.rightMargin: Theme.space16
        spacing: 16

        PlainLabel {
            Layout.fillWidth: true
            text: bar.summary
            color: Theme.secondary
            font.pixelSize: Theme.caption
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
        }

        PillButton {
            label: "Clear Selection"
            variant: "secondary"
            onClicked: bar.clearPressed()
        }

        PillButton {
            label: "Delete Selected"
            symbol: "trash"
            variant: "danger"
            onClicked: bar.deletePressed()
        }
    }
}
