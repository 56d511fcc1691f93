pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

/// The dashboard of a session: what was found in all, and a card for each category.
Scene {
    id: view

    required property string totalSummary
    required property bool hasSelection
    required property string deleteLabel
    required property var categories

    signal smartSelect
    signal deletionRequested
    signal categoryChosen(int category)

    first: header.first

    OverviewHeader {
        id: header

        anchors.left: parent.left
        anchors.right: parent.right
        totalSummary: view.totalSummary
        hasSelection: view.hasSelection
        deleteLabel: view.deleteLabel
        onSmartSelect: view.smartSelect()
        onDeletionRequested: view.deletionRequested()
    }

    Divider {
        id: line

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: header.bottom
    }

    Flickable {
        id: scroll

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: line.bottom
        anchors.bottom: parent.bottom
        contentHeight: grid.height + 2 * Theme.space16
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        T.ScrollBar.vertical: SlimScrollBar {}

        CategoryGrid {
            id: grid

            x: Theme.space16
            y: Theme.space16
            width: scroll.width - 2 * Theme.space16
            categories: view.categories
            onChosen: category => view.categoryChosen(category)
            onReached: (top, bottom) => {
                scroll.contentY = Math.max(Math.min(scroll.contentY, top), bottom + 2 * Theme.space16 - scroll.height);
            }
        }
    }
}
