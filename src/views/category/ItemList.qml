pragma ComponentBehavior: Bound

import QtQuick
import Drossbin.Views

/// The rows of a category. Arrows walk them; Space and Return press the current one's check box.
RowsView {
    id: list

    readonly property ItemRowView currentRow: list.currentItem as ItemRowView
    /// A protected row cannot have the focus; the list then has it, and shows where it is.
    readonly property bool showsFocus: list.currentRow !== null && (list.currentRow.visualFocus || (list.currentRow.isProtected && list.activeFocus && LastPress.reason === Qt.TabFocusReason))
    readonly property int page: Math.max(1, Math.floor(list.height / ((list.currentItem?.height ?? 0) + list.spacing)))
    /// How many rows a key walks.
    readonly property var strides: ({
            [Qt.Key_Up]: -1,
            [Qt.Key_Down]: 1,
            [Qt.Key_PageUp]: -list.page,
            [Qt.Key_PageDown]: list.page,
            [Qt.Key_Home]: -list.count,
            [Qt.Key_End]: list.count
        })

    /// The height before it changes.
    property real lastHeight: 0

    signal toggled(int row)

    function start(): void {
        list.currentIndex = 0;
        list.contentY = list.originY - list.topMargin;
    }

    function enter(): void {
        if (list.count > 0) {
            list.forceActiveFocus(Qt.TabFocusReason);
            list.walkTo(list.currentIndex);
        }
    }

    /// Makes a row in view the current one, so that the keyboard begins at what is seen.
    function beginInView(): void {
        const place = (list.currentRow?.y ?? 0) - list.contentY;
        const height = list.currentRow?.height ?? 0;
        if (place >= 0 && place + height <= list.height)
            return;
        // The end of a row that lies there begins in view; between two rows there is none.
        const rows = [1, 1 - list.spacing].map(gap => list.indexAt(list.width / 2, list.contentY + height - gap));
        list.currentIndex = Math.max(...rows, 0);
    }

    function walkTo(row: int): void {
        list.currentIndex = Math.max(0, Math.min(row, list.count - 1));
        if (list.currentRow !== null)
            list.currentRow.focusReason = Qt.TabFocusReason;
    }

    function pressCurrent(): void {
        if (list.currentRow?.enabled ?? false)
            list.toggled(list.currentIndex);
    }

    topMargin: Theme.space4
    bottomMargin: Theme.space4
    spacing: Theme.space2
    highlightMoveDuration: 0
    // A bar that comes up below must not cover the row that the keyboard is in.
    onHeightChanged: {
        const top = (list.currentRow?.y ?? 0) - list.contentY;
        if (list.activeFocus && top >= 0 && top + (list.currentRow?.height ?? 0) <= list.lastHeight)
            list.positionViewAtIndex(list.currentIndex, ListView.Contain);
        list.lastHeight = list.height;
    }
    activeFocusOnTab: list.count > 0 && !(list.currentRow?.enabled ?? false)
    keyNavigationEnabled: false
    onCountChanged: list.currentIndex = Math.min(Math.max(0, list.currentIndex), list.count - 1)
    Accessible.name: "Items"
    Keys.onSpacePressed: list.pressCurrent()
    Keys.onReturnPressed: list.pressCurrent()
    Keys.onEnterPressed: list.pressCurrent()
    Keys.onPressed: event => {
        event.accepted = event.key in list.strides;
        if (event.accepted)
            list.walkTo(list.currentIndex + list.strides[event.key]);
    }

    delegate: ItemRowView {
        id: row

        required property int index
        readonly property bool isMoving: list.moving

        function takeItsPlace(): void {
            ReadingOrder.put(row, list.itemAtIndex(row.index - 1), list.itemAtIndex(row.index + 1));
            // The current row is kept while it is out of view, and comes back unannounced.
            if (list.currentIndex === row.index - 1)
                ReadingOrder.put(list.currentItem, null, row);
            else if (list.currentIndex === row.index + 1)
                ReadingOrder.put(list.currentItem, row, null);
        }

        x: Theme.space8
        width: list.width - 2 * Theme.space8
        isCurrent: ListView.isCurrentItem
        onIsMovingChanged: row.closeInfo()
        onClicked: list.currentIndex = row.index
        onToggled: {
            list.currentIndex = row.index;
            list.toggled(row.index);
        }
        // Qt 6.4 only leaves out of the picture what waits to be used again: the keyboard and screen
        // readers would still reach it.
        ListView.onPooled: {
            row.closeInfo();
            row.visible = false;
        }
        ListView.onReused: {
            row.takeItsPlace();
            row.visible = true;
        }
        Component.onCompleted: row.takeItsPlace()
    }

    // Apart from the rows, because a protected one is dimmed. (Not the view's highlight, which
    // Qt 6.4 cannot make from a bound component.)
    Item {
        parent: list.contentItem
        x: list.currentRow?.x ?? 0
        y: list.currentRow?.y ?? 0
        z: 1
        width: list.currentRow?.width ?? 0
        height: list.currentRow?.height ?? 0

        FocusRing {
            gap: -2
            visible: list.showsFocus
        }

        Hint {
            text: list.currentRow?.hint ?? ""
            isFocused: list.showsFocus
        }
    }
}
