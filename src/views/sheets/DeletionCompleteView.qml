pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts

/// What the deletion brought, and what became of each item.
SheetPage {
    id: view

    required property string freedSpaceText
    required property var log
    /// The first line that tells of a failure, or -1.
    required property int firstFailure

    signal dismissed

    first: done
    implicitWidth: 440
    listName: "Deletion log"
    highest: 120
    pitch: Theme.logPitch
    model: view.log
    onVisibleChanged: if (view.visible && view.firstFailure > 0)
        view.showRow(view.firstFailure)

    delegate: LogLine {
        width: ListView.view.width
    }

    buttons: PillButton {
        id: done

        Layout.alignment: Qt.AlignHCenter
        focus: true
        label: "Done"
        onClicked: view.dismissed()
    }

    Symbol {
        Layout.alignment: Qt.AlignHCenter
        name: "checkmark.circle.fill"
        color: view.firstFailure < 0 ? Theme.symbolGreen : Theme.symbolOrange
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
            font.pixelSize: Theme.figure
            font.weight: Font.Bold
        }
    }
}
