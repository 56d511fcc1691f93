import QtQuick

/// A list in a sheet: as high as its rows, but no higher than `highest`, on a rounded panel.
Rectangle {
    id: panel

    property alias model: rows.model
    property alias delegate: rows.delegate
    required property real highest
    /// What a screen reader calls the list.
    required property string name

    implicitHeight: Math.min(panel.highest, rows.contentHeight + 2 * Theme.space4)
    radius: Theme.space8
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
        activeFocusOnTab: rows.contentHeight + 2 * Theme.space4 > rows.height
        keyNavigationEnabled: false
        Accessible.name: panel.name
        Keys.onUpPressed: rows.scrollBy(-Theme.space32)
        Keys.onDownPressed: rows.scrollBy(Theme.space32)
    }
}
