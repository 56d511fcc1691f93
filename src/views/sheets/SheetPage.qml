pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T

/// The inside of a sheet: what it says, a list, and buttons. Where the window is low the list gets
/// shorter; where that is not enough, all moves together; and where even that is not, all but the
/// buttons scrolls: those are always in view.
FocusScope {
    id: page

    /// The sheet's height at most.
    required property real tallest
    /// The button that has the focus each time the sheet comes, whatever had it when it last left.
    required property Item first
    default property alias heading: head.data
    property alias listName: list.name
    property alias highest: list.highest
    property alias pitch: list.pitch
    property alias model: list.model
    property alias delegate: list.delegate
    property alias buttons: foot.data
    /// The heights of the heading's parts, each with the space below it that it should have.
    readonly property real said: Array.from(head.children).reduce((sum, part) => part.visible ? sum + part.implicitHeight + Theme.space20 : sum, 0)
    readonly property bool isTight: page.tallest < Theme.space24 + page.said + list.least + Theme.space20 + foot.implicitHeight + Theme.space24
    readonly property int margin: page.isTight ? Theme.space16 : Theme.space24
    readonly property int spacing: page.isTight ? Theme.space8 : Theme.space20

    function start(): void {
        page.first.focus = true;
        scroll.contentY = 0;
        list.showTop();
    }

    function showRow(row: int): void {
        list.showRow(row);
    }

    onVisibleChanged: if (page.visible)
        page.start()
    implicitHeight: Math.min(page.tallest, Math.ceil(scroll.contentHeight + page.spacing + foot.implicitHeight + page.margin))

    Flickable {
        id: scroll

        anchors {
            left: parent.left
            right: parent.right
            top: parent.top
            bottom: foot.top
            bottomMargin: page.spacing
        }
        contentHeight: list.y + list.height
        clip: true
        interactive: scroll.contentHeight > scroll.height
        boundsBehavior: Flickable.StopAtBounds
        T.ScrollBar.vertical: SlimScrollBar {}

        ColumnLayout {
            id: head

            x: page.margin
            y: page.margin
            width: page.width - 2 * page.margin
            spacing: page.spacing
        }

        SheetList {
            id: list

            x: page.margin
            y: head.y + head.implicitHeight + page.spacing
            width: head.width
            room: page.tallest - list.y - page.spacing - foot.implicitHeight - page.margin
            isStop: list.isLonger || scroll.interactive
            // What is above it is there to be read while the keyboard is elsewhere.
            onHasFocusChanged: scroll.contentY = list.hasFocus ? Math.max(0, scroll.contentHeight - scroll.height) : 0
        }
    }

    Divider {
        anchors { left: parent.left; right: parent.right; top: scroll.bottom }
        visible: !scroll.atYEnd
    }

    RowLayout {
        id: foot

        anchors {
            left: parent.left
            right: parent.right
            bottom: parent.bottom
            margins: page.margin
        }
        spacing: Theme.space12
    }
}
