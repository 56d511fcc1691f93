import QtQuick
import QtTest
import Drossbin.Test
import Drossbin.Views
import ".."

TestCase {
    id: test

    name: "SelectionBar"
    when: windowShown
    width: 700
    height: 300
    visible: true

    readonly property string warning: "Selected items may contain saved passwords, autofill data, and login sessions."

    Finder {
        id: find
    }

    SelectionBar {
        id: bar

        property list<string> log: []

        y: 100
        width: 660
        summary: "3 items · 4 MB"
        hasBrowserData: false
        onClearPressed: bar.log = bar.log.concat(["clear"])
        onDeletePressed: bar.log = bar.log.concat(["delete"])
    }

    HeldTime {
        id: time
    }

    function init() {
        failOnWarning(/.?/);
        Theme.animated = false;
        bar.hasBrowserData = false;
        bar.log = [];
        waitForRendering(bar, 100);
    }

    function cleanup() {
        time.letGo();
    }

    function test_shows_the_summary_and_two_buttons() {
        compare(find.texts(bar), ["3 items · 4 MB"]);
        const summary = find.label(bar, "3 items · 4 MB");
        compare(summary.font.pixelSize, Theme.caption);
        verify(Qt.colorEqual(summary.color, Theme.secondary));
        compare(find.button(bar, "Clear Selection").variant, "secondary");
        compare(find.button(bar, "Delete Selected").variant, "danger");
        compare(find.button(bar, "Delete Selected").symbol, "trash");
    }

    function test_buttons_say_what_was_asked_for() {
        mouseClick(find.button(bar, "Clear Selection"));
        compare(bar.log.join(), "clear");
        mouseClick(find.button(bar, "Delete Selected"));
        compare(bar.log.join(), "clear,delete");
    }

    function test_tab_goes_from_clear_to_delete() {
        find.button(bar, "Clear Selection").forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Tab);
        compare(find.button(bar, "Delete Selected").activeFocus, true);
    }

    function test_is_padded_12_with_16_between() {
        const clear = find.button(bar, "Clear Selection");
        const remove = find.button(bar, "Delete Selected");
        compare(clear.mapToItem(bar, 0, 0).y, 12);
        compare(bar.height, clear.height + 24);
        compare(remove.mapToItem(bar, 0, 0).x, clear.mapToItem(bar, clear.width, 0).x + 16);
        compare(remove.mapToItem(bar, remove.width, 0).x, bar.width - Theme.space16);
    }

    function test_in_a_narrow_window_the_summary_has_a_line_of_its_own_data() {
        return [{ tag: "the buttons fit", width: 480 }, { tag: "the buttons get narrower", width: 640 - 241 }];
    }

    function test_in_a_narrow_window_the_summary_has_a_line_of_its_own(data) {
        bar.width = data.width;
        bar.summary = "100,000 items · 9.22 EB";
        waitForRendering(bar, 100);
        const summary = find.label(bar, bar.summary);
        const clear = find.button(bar, "Clear Selection");
        const remove = find.button(bar, "Delete Selected");
        compare(summary.truncated, false);
        verify(summary.width >= summary.contentWidth);
        compare(clear.mapToItem(bar, 0, 0).y, summary.mapToItem(bar, 0, summary.height).y + 8);
        verify(clear.mapToItem(bar, 0, 0).x >= 0);
        compare(remove.mapToItem(bar, 0, 0).x, clear.mapToItem(bar, clear.width, 0).x + 16);
        compare(remove.mapToItem(bar, remove.width, 0).x, bar.width - 16);
        bar.width = 660;
        bar.summary = "3 items · 4 MB";
    }

    function test_without_browser_data_there_is_no_warning() {
        compare(find.label(bar, test.warning), null);
    }

    function test_with_browser_data_it_warns_in_orange() {
        bar.hasBrowserData = true;
        waitForRendering(bar, 200);
        const text = find.label(bar, test.warning);
        const symbol = find.symbol(bar, "exclamationmark.triangle.fill");
        const panel = text.parent.parent;
        verify(Qt.colorEqual(text.color, Theme.orange));
        verify(Qt.colorEqual(symbol.color, Theme.orange));
        compare(text.font.pixelSize, Theme.caption);
        compare(text.mapToItem(bar, 0, 0).x, symbol.mapToItem(bar, symbol.width, 0).x + 8);
        compare(panel.width, bar.width);
        compare(panel.height, text.height + 16);
        compare(panel.opacity, 1);
        verify(Qt.colorEqual(panel.color, Theme.tinted(Theme.orangeTint, 0.06)));
        compare(text.truncated, false);
    }

    function test_warning_comes_in_from_below_and_fades_in_a_quarter_second() {
        Theme.animated = true;
        const warning = bar.children[0];
        const panel = warning.children[0];
        time.hold();
        bar.hasBrowserData = true;
        time.pass(125);
        fuzzyCompare(panel.opacity, 0.6848, 1e-3);
        compare(warning.implicitHeight, Math.round(panel.height * panel.opacity));
        time.pass(125);
        compare(panel.opacity, 1);
        compare(warning.implicitHeight, panel.height);
        bar.hasBrowserData = false;
        time.pass(125);
        fuzzyCompare(panel.opacity, 1 - 0.6848, 1e-3);
        time.pass(124);
        compare(warning.visible, true);
        time.pass(1);
        compare(warning.visible, false);
    }
}
