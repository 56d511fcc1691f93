import QtQuick

/// A centred line that fades over into its next text.
Item {
    id: line

    required property string text
    property alias font: arriving.font
    property alias color: arriving.color
    property string leaving: ""
    property string last: ""
    property real turn: 1

    implicitHeight: arriving.implicitHeight
    Accessible.role: Accessible.StaticText
    Accessible.name: line.text
    onTextChanged: {
        line.leaving = line.last;
        line.last = line.text;
        motion.restart();
    }

    EaseInOutMotion {
        id: motion

        target: line
        property: "turn"
        from: 0
        to: 1
        duration: Theme.standard
    }

    PlainLabel {
        id: arriving

        width: parent.width
        text: line.last
        opacity: line.turn
        horizontalAlignment: Text.AlignHCenter
        Accessible.ignored: true
    }

    PlainLabel {
        width: parent.width
        text: line.leaving
        font: arriving.font
        color: arriving.color
        opacity: 1 - line.turn
        visible: line.turn < 1
        horizontalAlignment: Text.AlignHCenter
        Accessible.ignored: true
    }
}
