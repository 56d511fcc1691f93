import QtQuick
import QtQuick.Templates as T
import Drossbin.Views

/// A round check box. It shows what its owner says, also after it was pressed.
T.CheckBox {
    id: box

    required property string name
    required property bool isSelected
    /// Why it cannot be checked, if so.
    property string hint: ""

    implicitWidth: Theme.space20
    implicitHeight: Theme.space24
    checked: box.isSelected
    nextCheckState: () => box.checkState
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    Keys.onReturnPressed: box.clicked()
    Keys.onEnterPressed: box.clicked()
    Accessible.role: Accessible.CheckBox
    Accessible.name: box.name
    Accessible.ignored: !box.enabled
    Accessible.checkable: true
    Accessible.checked: box.isSelected
    Accessible.onToggleAction: box.clicked()
    Accessible.onPressAction: box.clicked()

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: box.isSelected ? "checkmark.circle.fill" : "circle"
            color: box.isSelected ? Theme.blue : box.hovered ? Theme.label : Theme.secondary
            size: Theme.space16

            FocusRing {
                visible: box.visualFocus
                corner: parent.size / 2
            }
        }
    }

    AccessItem {
        anchors.fill: parent
        Accessible.ignored: box.enabled
        Accessible.role: Accessible.CheckBox
        Accessible.name: box.name
        Accessible.checked: box.isSelected
        Accessible.description: box.hint
    }
}
