import QtQuick

/// A list in a sheet, on a rounded panel: as high as its rows where there is room for them.
/// Elsewhere its lower edge cuts through the middle of one, so that one sees that there are more.
Rectangle {
    id: panel

    property alias model: rows.model
    property alias delegate: rows.delegate
    /// How high it may be in any window, and how high in this one.
    required property real highest
    required property real room
    /// The height of a row of one line.
    required property real pitch
    /// What a screen reader calls the list.
    required property string name
    /// Whether Tab stops here.
    required property bool isStop
    readonly property bool isLonger: panel.needed > panel.height
    readonly property bool hasFocus: rows.activeFocus
    readonly property real needed: rows.contentHeight + rows.topMargin + rows.bottomMargin
    /// So high it should be at least, or less with fewer rows; in no window does it show less than one
    /// and a half.
    readonly property real least: Math.min(panel.needed, rows.topMargin + 2.5 * panel.pitch)
    readonly property real available: Math.min(panel.highest, Math.max(panel.room, rows.topMargin + 1.5 * panel.pitch))
    readonly property real wholeRows: Math.floor((panel.available - rows.topMargin) / panel.pitch - 0.5)
    readonly property var strides: ({
            [Qt.Key_Up]: -Theme.space32,
            [Qt.Key_Down]: Theme.space32,
            [Qt.Key_PageUp]: -rows.height,
            [Qt.Key_PageDown]: rows.height,
            [Qt.Key_Home]: -rows.contentHeight,
            [Qt.Key_End]: rows.contentHeight
        })

    function showTop(): void {
        rows.contentY = rows.originY - rows.topMargin;
    }

    /// Scrolls so that this row is the first in view, as far as there are rows after it. (Not to the
    /// pixel: its letters would touch the panel's edge.)
    function showRow(row: int): void {
        rows.positionViewAtIndex(row, ListView.Beginning);
        rows.scrollBy(rows.itemAtIndex(row).y - Theme.space2 - rows.contentY);
    }

    implicitHeight: panel.needed <= panel.available ? panel.needed : Math.floor(rows.topMargin + (panel.wholeRows + 0.5) * panel.pitch)
    radius: Theme.corner
    color: Theme.material

    FocusRing {
        visible: rows.activeFocus
        gap: 0
    }

    RowsView {
        id: rows

        anchors.fill: parent
        topMargin: Theme.space4
        bottomMargin: Theme.space4
        activeFocusOnTab: panel.isStop
        keyNavigationEnabled: false
        Accessible.name: panel.name
        Keys.onPressed: event => {
            event.accepted = event.key in panel.strides;
            if (event.accepted)
                rows.scrollBy(panel.strides[event.key]);
        }
    }
}
