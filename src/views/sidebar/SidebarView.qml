pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts

/// The categories to pick from and, below them, the storage meter.
FocusScope {
    id: sidebar

    required property var categories
    /// -1 when none is picked.
    required property int selectedCategory
    /// Whether there is a way back from it to where none is picked.
    required property bool canGoBack
    required property string meterCaption
    required property string meterText
    required property bool isReclaiming
    required property real foundShare
    required property real selectedShare

    /// What the last row was picked with: only the keyboard has a ring.
    property int reason: Qt.OtherFocusReason
    readonly property string wayBack: sidebar.canGoBack ? "Escape shows the overview of all categories" : ""

    signal picked(int category)

    function pick(row: int, reason: int): void {
        sidebar.reason = reason;
        sidebar.picked(Math.max(0, Math.min(row, list.count - 1)));
    }

    implicitWidth: 240

    MouseArea {
        anchors.fill: parent
        onClicked: sidebar.picked(-1)
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.space12
        spacing: Theme.space8

        PlainLabel {
            Layout.leftMargin: Theme.space8
            text: "Categories"
            color: Theme.secondary
            font.pixelSize: Theme.caption2
            font.weight: Font.DemiBold
            Accessible.description: sidebar.wayBack

            HoverHandler {
                id: pointer
            }

            Hint {
                text: sidebar.wayBack
                isPointedAt: pointer.hovered
            }
        }

        ListView {
            id: list

            readonly property CategoryRow currentRow: list.currentItem as CategoryRow
            /// How many rows a key walks. All are always in view: a page is the whole list.
            readonly property var strides: ({
                    [Qt.Key_Up]: -1,
                    [Qt.Key_Down]: 1,
                    [Qt.Key_PageUp]: -list.count,
                    [Qt.Key_PageDown]: list.count,
                    [Qt.Key_Home]: -list.count,
                    [Qt.Key_End]: list.count
                })

            Layout.fillWidth: true
            // The first row's name is as far from the heading as rows are from each other.
            Layout.topMargin: -Theme.space3
            Layout.bottomMargin: -Theme.space3
            implicitHeight: contentHeight
            interactive: false
            spacing: Theme.space2
            model: sidebar.categories
            currentIndex: Math.max(0, sidebar.selectedCategory)
            activeFocusOnTab: true
            keyNavigationEnabled: false
            Accessible.role: Accessible.List
            Accessible.name: "Categories"
            Keys.onPressed: event => {
                event.accepted = event.key in list.strides;
                if (event.accepted)
                    sidebar.pick(sidebar.selectedCategory + list.strides[event.key], Qt.TabFocusReason);
            }
            onCurrentRowChanged: if (list.currentRow?.activeFocus)
                list.currentRow.focusReason = sidebar.reason

            delegate: CategoryRow {
                id: row

                required property int index
                required property var model

                // Its role is "icon", a name that buttons have taken.
                symbol: row.model.icon

                width: ListView.view.width
                hint: row.isCurrent ? sidebar.wayBack : ""
                onPicked: sidebar.pick(row.index, Qt.MouseFocusReason)
                onUnpicked: sidebar.picked(-1)
            }
        }

        Item {
            Layout.fillHeight: true
        }

        StorageMeter {
            Layout.fillWidth: true
            Layout.margins: Theme.space8
            caption: sidebar.meterCaption
            sizeText: sidebar.meterText
            isReclaiming: sidebar.isReclaiming
            foundShare: sidebar.foundShare
            selectedShare: sidebar.selectedShare
        }
    }
}
