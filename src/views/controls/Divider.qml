import QtQuick

Rectangle {
    implicitWidth: 1
    implicitHeight: 1
    color: Theme.divider
}
