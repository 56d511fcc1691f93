import QtQuick
import QtQuick.Templates as T

/// A scrolling list that builds only the rows in view and uses them again, and that shows the
/// whole of a text that is cut short when the pointer rests on it, also in a disabled row.
ListView {
    id: rows

    /// The label at a place of an item, or none.
    function labelAt(item: Item, place: point): PlainLabel {
        const hit = Array.from(item.children).filter(child => child.visible && child.contains(item.mapToItem(child, place)));
        return item as PlainLabel ?? hit.map(child => rows.labelAt(child, item.mapToItem(child, place))).find(label => label) ?? null;
    }

    /// The whole of the text at a place of the view if it is cut short there; nothing otherwise.
    function cutTextAt(x: real, y: real): string {
        const row = rows.itemAt(x + rows.contentX, y + rows.contentY);
        const label = row === null ? null : rows.labelAt(row, rows.mapToItem(row, Qt.point(x, y)));
        return label?.truncated ? label.text : "";
    }

    /// What the tip says at a place of the view.
    function hintAt(x: real, y: real): string {
        const row = rows.itemAt(x + rows.contentX, y + rows.contentY) as SelectedItemRow;
        return row?.path ?? rows.cutTextAt(x, y);
    }

    function scrollBy(distance: real): void {
        const top = rows.originY - rows.topMargin;
        const bottom = rows.originY + rows.contentHeight + rows.bottomMargin - rows.height;
        rows.contentY = Math.max(top, Math.min(rows.contentY + distance, bottom));
    }

    clip: true
    reuseItems: true
    cacheBuffer: 0 // rows built ahead are waited for, which Qt 6.4 complains of when the list gets shorter
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

        text: pointer.hovered && !rows.moving ? rows.hintAt(pointer.place.x, pointer.place.y) : ""
        x: Math.min(pointer.place.x, rows.width - tip.implicitWidth - Theme.space8)
        y: pointer.place.y + Theme.space20
        visible: text !== ""
    }
}
