pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts

/// Asks whether the selected items may go for good, and warns when a browser's are among them.
SheetPage {
    id: view

    required property string title
    required property string selectedSizeText
    required property bool hasBrowserItems
    required property var selectedItems

    signal confirmed
    signal cancelled

    first: cancel
    implicitWidth: 480
    listName: "Selected items"
    highest: 200
    pitch: 28
    model: view.selectedItems

    delegate: SelectedItemRow {
        width: ListView.view.width
        height: view.pitch
    }

    buttons: [
        PillButton {
            id: cancel

            Layout.fillWidth: true
            Layout.preferredWidth: 1
            focus: true
            label: "Cancel"
            variant: "secondary"
            onClicked: view.cancelled()
        },
        PillButton {
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            label: "Confirm & Delete"
            variant: "danger"
            onClicked: view.confirmed()
        }
    ]

    Symbol {
        Layout.alignment: Qt.AlignHCenter
        name: "exclamationmark.triangle.fill"
        color: Theme.symbolOrange
        size: 40
    }

    Column {
        Layout.alignment: Qt.AlignHCenter
        spacing: Theme.space4

        PlainLabel {
            anchors.horizontalCenter: parent.horizontalCenter
            text: view.title
            font.pixelSize: Theme.title2
            font.weight: Font.Bold
        }

        PlainLabel {
            anchors.horizontalCenter: parent.horizontalCenter
            text: "This action cannot be undone."
            color: Theme.secondary
        }
    }

    Row {
        Layout.alignment: Qt.AlignHCenter
        spacing: Theme.space8

        PlainLabel {
            text: "Space to be reclaimed:"
            color: Theme.secondary
        }

        PlainLabel {
            text: view.selectedSizeText
            font.weight: Font.DemiBold
        }
    }

    ConfirmationWarning {
        Layout.fillWidth: true
        visible: view.hasBrowserItems
    }
}
