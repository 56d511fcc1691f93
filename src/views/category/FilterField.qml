import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T

/// The text that narrows the lists, with every key stroke.
FocusScope {
    id: filter

    required property string searchText

    signal edited(string text)
    signal movedDown

    function clear(): void {
        filter.edited("");
        input.forceActiveFocus();
    }

    function find(): void {
        input.forceActiveFocus(Qt.ShortcutFocusReason);
        input.selectAll();
    }

    implicitWidth: 240
    implicitHeight: content.implicitHeight + 2 * Theme.space6

    Rectangle {
        anchors.fill: parent
        radius: Theme.corner
        color: Theme.tinted(Theme.quaternary, 0.5)
        border.width: 1
        border.color: Theme.divider

        FocusRing {
            gap: 0
            visible: input.activeFocus
        }
    }

    TapHandler {
        onTapped: input.forceActiveFocus(Qt.MouseFocusReason)
    }

    RowLayout {
        id: content

        anchors.fill: parent
        anchors.margins: Theme.space6
        spacing: Theme.space6

        Symbol {
            name: "magnifyingglass"
            color: Theme.secondary
            size: Theme.body
        }

        T.TextField {
            id: input

            Layout.fillWidth: true
            implicitHeight: Theme.lineHeight(Theme.body)
            focus: true
            text: filter.searchText
            color: Theme.label
            selectionColor: Theme.primaryFill
            selectedTextColor: Theme.bright
            font.pixelSize: Theme.body
            selectByMouse: true
            // By the layout's direction, not by that of what was typed.
            horizontalAlignment: TextInput.AlignLeft
            Accessible.role: Accessible.EditableText
            Accessible.name: placeholder.text
            onTextEdited: filter.edited(input.text)
            Keys.onDownPressed: filter.movedDown()
            Keys.onEscapePressed: event => {
                event.accepted = input.text !== "";
                if (event.accepted)
                    filter.edited("");
            }

            PlainLabel {
                id: placeholder

                anchors {
                    left: parent.left
                    right: parent.right
                    // So that the caret does not stand on the first letter.
                    leftMargin: Theme.space2
                    verticalCenter: parent.verticalCenter
                }
                visible: input.text === "" && input.preeditText === ""
                text: "Filter items..."
                color: Theme.tertiary
                elide: Text.ElideRight
                horizontalAlignment: Text.AlignLeft
                Accessible.ignored: true
            }
        }

        SymbolButton {
            visible: filter.searchText !== ""
            implicitHeight: input.implicitHeight
            symbol: "xmark.circle.fill"
            symbolSize: Theme.body
            label: "Clear filter"
            hint: label
            onClicked: filter.clear()
        }
    }
}
