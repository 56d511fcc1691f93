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
    // Before the name gets less than its least, first the date goes, then the words of the badge.
    readonly property int leastName: 140
    readonly property int widestRisk: 80
    readonly property int dateWidth: 70
    readonly property int sizeWidth: 80
    /// What is left for the name beside all that always stays there: check box, symbol, information,
    /// the badge's symbol and the size.
    readonly property real room: row.width - row.leftPadding - row.rightPadding - 3 * Theme.frame - badge.narrowest - row.sizeWidth - 5 * row.spacing
    readonly property bool showsRisk: row.room >= row.leastName + row.widestRisk
    readonly property bool showsDate: row.room >= row.leastName + row.widestRisk + row.dateWidth + row.spacing
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

    // With the space between rows on whole pixels: each row then looks like the one above it. By the
    // lines themselves: their column has a height only when a frame is laid out, and until then the
    // list would take a row for a thin one and make three times as many.
    implicitHeight: Theme.onWholePixels(title.implicitHeight + names.spacing + place.implicitHeight + topPadding + bottomPadding + Theme.space2) - Theme.space2
    verticalPadding: Theme.space4
    horizontalPadding: Theme.space8
    spacing: Theme.space12
    enabled: !row.isProtected
    opacity: row.isProtected ? Theme.unavailable : 1.0
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
        radius: Theme.corner
        color: row.isSelected ? Theme.tinted(Theme.blue, 0.06) : "transparent"
    }

    // All of the row's end is to be pressed: symbol and padding, from edge to edge.
    CheckMark {
        id: check

        anchors.left: parent.left
        width: Theme.frame + row.leftPadding + row.rightPadding
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

            anchors { left: parent.left; leftMargin: Theme.frame + row.spacing; verticalCenter: parent.verticalCenter }
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
            spacing: Theme.space3

            PlainLabel {
                id: title

                width: parent.width
                text: row.name
                elide: Text.ElideMiddle
                horizontalAlignment: Text.AlignLeft
            }

            PlainLabel {
                id: place

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
                id: badge

                anchors.verticalCenter: parent.verticalCenter
                riskColor: row.riskColor
                riskLabel: row.riskLabel
                riskSymbol: row.riskSymbol
                showsLabel: row.showsRisk
            }

            PlainLabel {
                visible: row.showsDate
                anchors.verticalCenter: parent.verticalCenter
                width: row.dateWidth
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
                width: row.sizeWidth
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
