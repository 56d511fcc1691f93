pragma ComponentBehavior: Bound

import QtQuick

/// The cards, as many in a row as fit at 200 each with 16 between them.
Grid {
    id: grid

    required property var categories
    readonly property real cellWidth: (grid.width - (grid.columns - 1) * grid.columnSpacing) / grid.columns

    signal chosen(int category)
    /// The keyboard is on a card that goes from `top` to `bottom`.
    signal reached(real top, real bottom)

    columns: Math.max(1, Math.floor((grid.width + grid.columnSpacing) / (200 + grid.columnSpacing)))
    columnSpacing: Theme.space16
    rowSpacing: Theme.space16

    Repeater {
        model: grid.categories

        CategoryCard {
            id: card

            required property int index
            required property var model

            width: grid.cellWidth
            // A button has an `icon` of its own, so this role cannot find its place by its name.
            symbol: card.model.icon
            onClicked: grid.chosen(card.index)
            onVisualFocusChanged: if (card.visualFocus)
                grid.reached(card.y, card.y + card.height)
        }
    }
}
