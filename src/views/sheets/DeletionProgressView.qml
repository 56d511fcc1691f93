import QtQuick

/// How far the deletion is. Nothing here can be pressed: only its end closes it.
FocusScope {
    id: view

    required property real progress
    required property string percentText

    implicitWidth: 240
    implicitHeight: column.implicitHeight + 64

    Column {
        id: column

        anchors.centerIn: parent
        spacing: Theme.space20

        ProgressRing {
            anchors.horizontalCenter: parent.horizontalCenter
            focus: true
            width: 80
            height: 80
            lineWidth: 4
            isGlowing: true
            progress: view.progress
            name: status.text

            FigureLabel {
                figures: view.percentText
                font.pixelSize: Theme.title3
                font.weight: Font.Bold
            }
        }

        PlainLabel {
            id: status

            anchors.horizontalCenter: parent.horizontalCenter
            text: "Deleting files..."
            color: Theme.secondary
        }
    }
}
