import QtQuick
import QtQuick.Layouts

/// The items of one category, largest first: narrow them, select them, ask for their deletion.
Scene {
    id: pane

    required property string name
    required property string icon
    required property string subtitle
    required property string sizeText
    required property string categorySummary
    required property string searchText
    required property var items
    required property bool hasSelection
    required property bool hasBrowserData
    required property string overallSummary

    signal selectAllPressed
    signal deselectAllPressed
    signal searchEdited(string text)
    signal toggled(int row)
    signal clearPressed
    signal deletePressed
    signal dismissed

    first: list.count > 0 ? list : filter
    Keys.onEscapePressed: pane.dismissed()
    onNameChanged: list.start()
    // Rows that came while it was hidden are not counted before.
    onVisibleChanged: list.forceLayout()
    onEntered: list.beginInView()

    Shortcut {
        sequence: "Ctrl+F"
        enabled: pane.visible
        onActivated: filter.find()
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        CategoryHeader {
            Layout.margins: Theme.space16
            Layout.topMargin: Theme.topRoom(firstLine)
            name: pane.name
            icon: pane.icon
            subtitle: pane.subtitle
            sizeText: pane.sizeText
        }

        // Where one line is too short for all, the summary has a line of its own.
        GridLayout {
            readonly property bool isWide: buttons.implicitWidth + columnSpacing + summary.implicitWidth + 2 * Theme.space16 <= pane.width

            Layout.leftMargin: Theme.space16
            Layout.rightMargin: Theme.space16
            columns: isWide ? 2 : 1
            columnSpacing: Theme.space16
            rowSpacing: Theme.space8

            RowLayout {
                id: buttons

                spacing: Theme.space8

                PillButton {
                    label: "Select All Safe"
                    hint: "Selects every item of this category that is not Protected, also those marked Review First or hidden by the filter"
                    variant: "secondary"
                    onClicked: pane.selectAllPressed()
                }

                PillButton {
                    label: "Deselect All"
                    hint: "Deselects every item of this category, also those hidden by the filter"
                    variant: "secondary"
                    onClicked: pane.deselectAllPressed()
                }
            }

            PlainLabel {
                id: summary

                Layout.fillWidth: true
                text: pane.categorySummary
                color: Theme.blue
                font.pixelSize: Theme.caption
                elide: Text.ElideRight
                horizontalAlignment: Text.AlignLeft
            }
        }

        FilterField {
            id: filter

            Layout.fillWidth: true
            Layout.margins: Theme.space16
            Layout.topMargin: Theme.space12
            // So that the rows begin on a whole pixel at 125, 150 and 175 % too.
            Layout.bottomMargin: Theme.onWholePixels(y + height + Theme.space12 + line.height) - y - height - line.height
            searchText: pane.searchText
            onEdited: text => pane.searchEdited(text)
            onMovedDown: list.enter()
        }

        Divider {
            id: line

            Layout.fillWidth: true
        }

        ItemList {
            id: list

            Layout.fillWidth: true
            Layout.fillHeight: true
            model: pane.items
            onToggled: row => pane.toggled(row)
        }

        Divider {
            Layout.fillWidth: true
            visible: pane.hasSelection
        }

        SelectionBar {
            Layout.fillWidth: true
            visible: pane.hasSelection
            summary: pane.overallSummary
            hasBrowserData: pane.hasBrowserData
            onClearPressed: pane.clearPressed()
            onDeletePressed: pane.deletePressed()
        }
    }
}
