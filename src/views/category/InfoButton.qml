import QtQuick
import Drossbin.Views

/// Opens the note on an item's risk and closes it again; it gets the focus back then.
SymbolButton {
    id: button

    required property string riskColor
    required property string riskLabel
    required property string riskSymbol
    required property string note
    property RiskPopover popover: null
    readonly property bool showInfo: button.popover !== null

    function open(): void {
        button.popover = content.createObject(button, {
            opener: button,
            riskColor: button.riskColor,
            riskLabel: button.riskLabel,
            riskSymbol: button.riskSymbol,
            note: button.note
        });
        button.popover.open();
    }

    function forget(): void {
        button.popover.destroy();
        button.popover = null;
        button.forceActiveFocus(LastPress.reason);
    }

    symbol: "info.circle"
    label: "Information"
    hint: "About this item"
    isOpen: button.showInfo
    onClicked: if (button.showInfo)
        button.popover.close();
    else if (button.enabled)
        button.open();

    // Made when asked for: a popup in each row would slow scrolling down.
    Component {
        id: content

        RiskPopover {}
    }

    Connections {
        target: button.popover

        function onClosed() {
            button.forget();
        }
    }
}
