import QtQuick

/// A symbol in the middle of a frame 20 wide, so that symbols of any width stand in one column.
Item {
    id: frame

    property alias name: symbol.name
    property alias color: symbol.color

    implicitWidth: 20
    implicitHeight: 20

    Symbol {
        id: symbol

        anchors.centerIn: parent
        color: Theme.secondary
        size: Theme.space16
    }
}
