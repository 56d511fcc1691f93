import QtQuick.Controls

ApplicationWindow {
    width: 900
    height: 650
    visible: true
}
