import QtQuick
import QtQuick.Templates as T

/// A scrolling list that builds only the rows in view and uses them again, and that shows the
/// whole of a text that is cut short when the pointer rests on it, also in a disabled row.
ListView {
    id: rows

    /// The label at a place of an item, or none.
    function labelAt(item: Item, x: real, y: real): PlainLabel {
        if (item instanceof PlainLabel)
            return item as PlainLabel;
        for (let index = item.children.length - 1; index >= 0; --index) {
            const child = item.children[index];
            const inside = item.mapToItem(child, x, y);
            const label = child.visible && child.contains(inside) ? rows.labelAt(child, inside.x, inside.y) : null;
            if (label !== null)
                return label;
        }
        return null;
    }

    /// The whole of the text at a place of the view if it is cut short there; nothing otherwise.
    function cutTextAt(x: real, y: real): string {
        const row = rows.itemAt(x + rows.contentX, y + rows.contentY);
        const place = rows.mapToItem(row, x, y);
        const label = row === null ? null : rows.labelAt(row, place.x, place.y);
        return label !== null && label.truncated ? label.text : "";
    }

    function scrollBy(distance: real): void {
        rows.contentY = Math.max(rows.originY, Math.min(rows.contentY + distance, rows.originY + rows.contentHeight - rows.height));
    }

    clip: true
    reuseItems: true
    cacheBuffer: 200
    boundsBehavior: Flickable.StopAtBounds
    Accessible.role: Accessible.List
    T.ScrollBar.vertical: SlimScrollBar {}

    HoverHandler {
        id: pointer

        readonly property point place: pointer.point.position

        parent: rows
    }

    Tip {
        id: tip

        text: pointer.hovered && !rows.moving ? rows.cutTextAt(pointer.place.x, pointer.place.y) : ""
        x: Math.min(pointer.place.x, rows.width - tip.implicitWidth - Theme.space8)
        y: pointer.place.y + Theme.space20
        visible: text !== ""
    }
}
