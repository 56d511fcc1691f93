import QtQuick

/// The five categories as the sidebar gets them.
ListModel {
    id: categories

    function choose(category: int): void {
        for (let row = 0; row < categories.count; ++row)
            categories.setProperty(row, "isCurrent", row === category);
    }

    ListElement {
        name: "Program Caches"
        icon: "trash"
        caption: "3 items · 4 MB"
        isCurrent: false
    }
    ListElement {
        name: "Package Caches"
        icon: "shippingbox"
        caption: "7 items · 8.1 GB"
        isCurrent: false
    }
    ListElement {
        name: "App Data"
        icon: "square.stack.3d.up"
        caption: "0 items · Zero KB"
        isCurrent: false
    }
    ListElement {
        name: "Log Files"
        icon: "doc.text"
        caption: "1 items · 1 byte"
        isCurrent: false
    }
    ListElement {
        name: "Old Downloads"
        icon: "arrow.down.circle"
        caption: "100,000 items · 9.22 EB"
        isCurrent: false
    }
}
