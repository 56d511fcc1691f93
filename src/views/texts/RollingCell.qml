import QtQuick

/// One character, or a unit, of a rolling text: the new comes up from below while the old leaves.
Item {
    id: cell

    required property string text
    required property font font
    required property color color
    /// How wide a digit's cell is; 0 for as wide as the digit.
    required property real digitWidth
    required property bool rolls
    property string shown: ""
    property string leaving: ""
    property real turn: 1
    readonly property bool isDigit: /^[0-9]$/.test(cell.shown)

    function roll(): void {
        cell.leaving = cell.shown;
        cell.shown = cell.text;
        motion.restart();
        cell.settle();
    }

    function settle(): void {
        if (!cell.rolls)
            motion.complete();
    }

    implicitWidth: cell.shown === "" ? 0 : cell.isDigit && cell.digitWidth > 0 ? cell.digitWidth : arriving.implicitWidth
    implicitHeight: arriving.implicitHeight
    onTextChanged: cell.roll()
    onRollsChanged: cell.settle()
    Component.onCompleted: {
        cell.shown = cell.text;
        cell.leaving = "";
        motion.complete();
    }

    SpringMotion {
        id: motion

        target: cell
        property: "turn"
        from: 0
        to: 1
    }

    PlainLabel {
        id: arriving

        anchors.horizontalCenter: parent.horizontalCenter
        y: (1 - cell.turn) * cell.height / 2
        opacity: cell.turn
        text: cell.shown
        font: cell.font
        color: cell.color
        Accessible.ignored: true
    }

    PlainLabel {
        // A word that gives way to a digit spills over its end, not over both sides.
        x: /^[0-9]$/.test(cell.leaving) ? (parent.width - width) / 2 : 0
        y: -cell.turn * cell.height / 2
        opacity: 1 - cell.turn
        visible: cell.turn < 1
        text: cell.leaving
        font: cell.font
        color: cell.color
        Accessible.ignored: true
    }
}
