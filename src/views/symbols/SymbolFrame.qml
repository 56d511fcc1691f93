import QtQuick

/// A symbol in the middle of a frame, so that symbols of any width stand in one column.
Item {
    id: frame

    property alias name: symbol.name
    property alias color: symbol.color

    implicitWidth: Theme.frame
    implicitHeight: Theme.frame

    Symbol {
        id: symbol

        anchors.centerIn: parent
        color: Theme.secondary
        size: Theme.space16
    }
}
