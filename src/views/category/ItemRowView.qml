import QtQuick
import QtQuick.Templates as T

/// One item of a category: whether it is selected, what it is, how risky, how old and how large.
T.ItemDelegate {
    id: row

    required property string name
    required property string path
    required property string symbol
    required property bool hasNote
    required property string note
    required property string riskColor
    required property string riskLabel
    required property string riskSymbol
    required property string dateText
    required property string sizeText
    required property bool isSelected
    required property bool isProtected
    /// Whether the keyboard is in this row: only then its controls are reached with Tab.
    property bool isCurrent: false
    readonly property bool showInfo: information.showInfo
    /// What is left for the name beside all that always stays there. It keeps 140: before it gets
    /// less, first the date goes (70 and the space before it), then the words of the badge (80 at most).
    readonly property real room: row.width - 243
    readonly property bool showsRisk: row.room >= 140 + 80
    readonly property bool showsDate: row.room >= 140 + 80 + 82
    /// Why it cannot be selected, if so.
    readonly property string hint: row.isProtected ? "Protected: it may hold passwords, keys or settings, so it cannot be selected" : ""

    signal toggled

    /// Assistive programs press disabled controls too.
    function press(): void {
        if (!row.isProtected)
            row.toggled();
    }

    function closeInfo(): void {
        information.popover?.close();
    }

    // With the 2 between rows a multiple of 4, which is whole in pixels at 125, 150 and 175 % too:
    // each row then looks like the one above it.
    implicitHeight: Math.ceil((names.implicitHeight + topPadding + bottomPadding + 2) / 4) * 4 - 2
    verticalPadding: 4
    horizontalPadding: 8
    spacing: 12
    enabled: !row.isProtected
    opacity: row.isProtected ? 0.4 : 1.0
    focusPolicy: Qt.NoFocus
    onPathChanged: row.closeInfo() // it was about another item
    Keys.onSpacePressed: row.press()
    activeFocusOnTab: row.isCurrent || row.activeFocus
    Accessible.role: Accessible.ListItem
    Accessible.name: row.name
    // Qt 6.4 tells assistive programs of no disabled state.
    Accessible.description: row.isProtected ? `Disabled, ${row.path}. ${row.hint}` : row.path
    Accessible.selectable: true
    Accessible.selected: row.isSelected

    background: Rectangle {
        radius: 8
        color: row.isSelected ? Theme.tinted(Theme.blue, 0.06) : "transparent"
    }

    // All of the row's end is to be pressed: symbol and padding, from edge to edge.
    CheckMark {
        id: check

        anchors.left: parent.left
        width: 20 + row.leftPadding + row.rightPadding
        height: parent.height
        name: row.name
        isSelected: row.isSelected
        hint: row.hint
        activeFocusOnTab: row.isCurrent || activeFocus
        onClicked: row.press()
    }

    Item {
        anchors {
            fill: parent
            leftMargin: row.leftPadding
            rightMargin: row.rightPadding
            topMargin: row.topPadding
            bottomMargin: row.bottomPadding
        }

        SymbolFrame {
            id: frame

            anchors { left: parent.left; leftMargin: 20 + row.spacing; verticalCenter: parent.verticalCenter }
            name: row.symbol
        }

        Column {
            id: names

            anchors {
                left: frame.right
                right: trailing.left
                margins: row.spacing
                verticalCenter: parent.verticalCenter
            }
            spacing: 3

            PlainLabel {
                width: parent.width
                text: row.name
                elide: Text.ElideMiddle
                horizontalAlignment: Text.AlignLeft
            }

            PlainLabel {
                width: parent.width
                text: row.path
                color: Theme.tertiary
                font.pixelSize: Theme.caption2
                elide: Text.ElideMiddle
                horizontalAlignment: Text.AlignLeft
            }
        }

        Row {
            id: trailing

            anchors.right: parent.right
            height: parent.height
            spacing: row.spacing

            InfoButton {
                id: information

                visible: row.hasNote
                height: parent.height
                riskColor: row.riskColor
                riskLabel: row.riskLabel
                riskSymbol: row.riskSymbol
                note: row.note
                activeFocusOnTab: row.isCurrent || activeFocus
            }

            RiskBadge {
                anchors.verticalCenter: parent.verticalCenter
                riskColor: row.riskColor
                riskLabel: row.riskLabel
                riskSymbol: row.riskSymbol
                showsLabel: row.showsRisk
            }

            PlainLabel {
                visible: row.showsDate
                anchors.verticalCenter: parent.verticalCenter
                width: 70
                text: row.dateText
                color: Theme.secondary
                font.pixelSize: Theme.caption
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                maximumLineCount: 2
                elide: Text.ElideRight
            }

            Item {
                anchors.verticalCenter: parent.verticalCenter
                width: 80
                height: size.height

                FigureLabel {
                    id: size

                    anchors.right: parent.right
                    figures: row.sizeText
                    scale: Math.min(1, parent.width / width)
                    transformOrigin: row.mirrored ? Item.Left : Item.Right
                }
            }
        }
    }
}
