import QtQuick

/// What a scan that found nothing shows.
Scene {
    id: view

    signal scan

    first: button

    Column {
        anchors.centerIn: parent
        spacing: Theme.space16

        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "sparkles"
            size: 48
            color: Theme.symbolGreen
        }

        PlainLabel {
            anchors.horizontalCenter: parent.horizontalCenter
            text: "Your Mac is clean!"
            font.pixelSize: Theme.title
            font.weight: Font.Bold
        }

        PlainLabel {
            anchors.horizontalCenter: parent.horizontalCenter
            text: "No significant cache files found."
            color: Theme.secondary
        }

        PillButton {
            id: button

            anchors.horizontalCenter: parent.horizontalCenter
            label: "Scan Again"
            onClicked: view.scan()
        }
    }
}
