import QtQuick
import QtQuick.Templates as T

/// A scrolling list that builds only the rows in view and uses them again, and that shows the
/// whole of a text that is cut short when the pointer rests on it, also in a disabled row; or else
/// what that row has to say.
ListView {
    id: rows

    /// The label at a place of an item, or none.
    function labelAt(item: Item, place: point): PlainLabel {
        const hit = Array.from(item.children).filter(child => child.visible && child.contains(item.mapToItem(child, place)));
        return item as PlainLabel ?? hit.map(child => rows.labelAt(child, item.mapToItem(child, place))).find(label => label) ?? null;
    }

    /// What the tip says at a place of the view.
    function tipAt(x: real, y: real): string {
        const row = rows.itemAt(x + rows.contentX, y + rows.contentY);
        const label = row === null ? null : rows.labelAt(row, rows.mapToItem(row, Qt.point(x, y)));
        const cut = label?.truncated ? label.text : "";
        return (row as SelectedItemRow)?.path ?? (cut || (row as ItemRowView)?.hint) ?? "";
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

        // Not its position, which Qt 6.4 tells in the rows' coordinates: those are scrolled.
        readonly property point place: rows.mapFromItem(null, pointer.point.scenePosition)

        parent: rows
    }

    Hint {
        id: tip

        parent: rows
        text: pointer.hovered && !rows.moving ? rows.tipAt(pointer.place.x, pointer.place.y) : ""
        isPointedAt: text !== ""
        place: Qt.rect(pointer.place.x, pointer.place.y, 0, Theme.space16)
        widest: Theme.tipWidth
        wrapMode: Text.WrapAnywhere
        onTextChanged: tip.pointAnew() // it is about another row
    }
}
