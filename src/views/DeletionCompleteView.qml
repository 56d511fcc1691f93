pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts

/// What the deletion brought, and what became of each item.
FocusScope {
    id: view

    required property string freedSpaceText
    required property var log

    signal dismissed

    implicitWidth: 440
    implicitHeight: column.implicitHeight + 48

    ColumnLayout {
        id: column

        anchors.fill: parent
        anchors.margins: 24
        spacing: 20

        Symbol {
            Layout.alignment: Qt.AlignHCenter
            name: "checkmark.circle.fill"
            color: Theme.symbolGreen
            size: 56
        }

        PlainLabel {
            Layout.alignment: Qt.AlignHCenter
            text: "Cleanup Complete!"
            font.pixelSize: Theme.title
            font.weight: Font.Bold
        }

        Column {
            Layout.alignment: Qt.AlignHCenter
            spacing: Theme.space4

            PlainLabel {
                anchors.horizontalCenter: parent.horizontalCenter
                text: "You freed"
                color: Theme.secondary
                font.pixelSize: Theme.caption
            }

            PlainLabel {
                anchors.horizontalCenter: parent.horizontalCenter
                text: view.freedSpaceText
                font.pixelSize: 36
                font.weight: Font.Bold
            }
        }

        SheetList {
            Layout.fillWidth: true
            highest: 120
            name: "Deletion log"
            model: view.log

            delegate: LogLine {
                width: ListView.view.width
            }
        }

        PillButton {
            Layout.alignment: Qt.AlignHCenter
            focus: true
            label: "Done"
            onClicked: view.dismissed()
        }
    }
}
