import QtQuick
import QtTest
import Drossbin.Views
import ".."

TestCase {
    id: test

    name: "EmptyStateView"
    when: windowShown
    width: 660
    height: 650
    visible: true

    Finder {
        id: finder
    }

    EmptyStateView {
        id: view

        anchors.fill: parent
    }

    SignalSpy {
        id: scans

        target: view
        signalName: "scan"
    }

    function init() {
        failOnWarning(/.?/);
        scans.clear();
    }

    function test_texts_from_top_to_bottom() {
        compare(finder.texts(view), ["Your Mac is clean!", "No significant cache files found."]);
        const title = finder.label(view, "Your Mac is clean!");
        compare(title.font.pixelSize, Theme.title);
        compare(title.font.weight, Font.Bold);
        verify(Qt.colorEqual(finder.label(view, "No significant cache files found.").color, Theme.secondary));
    }

    function test_symbol_is_green_at_48() {
        const symbol = finder.symbol(view, "sparkles");
        compare(symbol.size, 48);
        verify(Qt.colorEqual(symbol.color, Theme.symbolGreen));
    }

    function test_rows_stand_16_apart_in_the_middle() {
        const column = finder.symbol(view, "sparkles").parent;
        const rows = Array.from(column.children);
        for (let index = 1; index < rows.length; ++index)
            compare(rows[index].y - rows[index - 1].y - rows[index - 1].height, 16);
        fuzzyCompare(column.x + column.width / 2, 330, 0.6);
        fuzzyCompare(column.y + column.height / 2, 325, 0.6);
    }

    function test_scan_again_asks_for_a_scan_with_or_without_option() {
        const button = finder.button(view, "Scan Again");
        compare(button.variant, "primary");
        mouseClick(button);
        mouseClick(button, button.width / 2, button.height / 2, Qt.LeftButton, Qt.AltModifier);
        compare(scans.count, 2);
    }

    function test_a_click_elsewhere_asks_for_nothing() {
        mouseClick(finder.symbol(view, "sparkles"));
        compare(scans.count, 0);
    }
}
