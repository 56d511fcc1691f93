import QtQuick
import QtTest
import Drossbin.Views
import ".."

TestCase {
    id: test

    name: "SidebarView"
    when: windowShown
    width: 300
    height: 650
    visible: true

    readonly property list<string> categoryNames: ["Program Caches", "Package Caches", "App Data", "Log Files", "Old Downloads"]

    /// Not while a scan runs, nor where one found nothing, though a category stays picked.
    property bool hasWayBack: true

    Finder {
        id: find
    }

    Categories {
        id: categories
    }

    SidebarView {
        id: sidebar

        property list<int> log: []

        width: 240
        height: 650
        categories: categories
        selectedCategory: -1
        canGoBack: test.hasWayBack && selectedCategory >= 0
        meterCaption: "Cache Found"
        meterText: "29.7 GB"
        isReclaiming: false
        foundShare: 0.25
        selectedShare: 0
        // Answered a turn later, as the program does.
        onPicked: category => {
            sidebar.log = sidebar.log.concat([category]);
            Qt.callLater(test.choose, category);
        }
    }

    function init() {
        failOnWarning(/.?/);
        Theme.animated = false;
        choose(-1);
        hasWayBack = true;
        sidebar.log = [];
    }

    function choose(category: int) {
        sidebar.selectedCategory = category;
        categories.choose(category);
    }

    function row(name: string): CategoryRow {
        return find.control(sidebar, Accessible.ListItem, name);
    }

    function list(): ListView {
        return find.control(sidebar, Accessible.List, "Categories");
    }

    function test_fits_under_the_toolbar_of_the_smallest_window() {
        sidebar.height = 400 - (Theme.topLine - 20);
        waitForRendering(sidebar);
        const meter = find.label(sidebar, "Cache Found").parent.parent;
        compare(meter.mapToItem(sidebar, 0, meter.height).y, sidebar.height - 20);
        const last = find.label(sidebar, "Old Downloads").parent;
        verify(last.mapToItem(sidebar, 0, last.height).y < meter.mapToItem(sidebar, 0, 0).y);
        sidebar.height = 650;
    }

    function test_shows_the_categories_in_order_and_then_the_meter() {
        compare(find.texts(sidebar).join("|"), ["Categories",
            "Program Caches", "3 items · 4 MB", "Package Caches", "7 items · 8.1 GB", "App Data", "0 items · Zero KB",
            "Log Files", "1 items · 1 byte", "Old Downloads", "100,000 items · 9.22 EB",
            "Cache Found", "29.7 GB"].join("|"));
    }

    function test_is_at_least_240_wide() {
        compare(sidebar.implicitWidth, 240);
        for (const label of find.labels(sidebar))
            verify(!label.truncated, label.text);
    }

    function test_rows_have_their_measures() {
        const item = row("Log Files");
        const frame = find.symbol(item, "doc.text").parent;
        const name = find.label(item, "Log Files");
        const caption = find.label(item, "1 items · 1 byte");
        compare(frame.width, 20);
        compare(name.mapToItem(item, 0, 0).y, 5);
        compare(caption.mapToItem(item, 0, 0).y, 5 + name.height + 2);
        compare(item.height, 5 + name.height + 2 + caption.height + 5);
        compare(name.font.pixelSize, Theme.body);
        compare(caption.font.pixelSize, Theme.caption);
        verify(Qt.colorEqual(caption.color, Theme.secondary));
    }

    function test_lines_keep_5_from_the_edge_of_what_is_picked_and_rows_apart() {
        const item = row("Log Files");
        const next = row("Old Downloads");
        compare(item.background.mapToItem(item, 0, 0).y, 0);
        compare(item.background.height, item.height);
        compare(next.mapToItem(item, 0, 0).y, item.height + 2);
        mouseClick(item, 20, 1);
        mouseClick(item, 20, item.height - 1);
        compare(sidebar.log, [3, 3]);
    }

    function test_only_the_picked_symbol_is_blue() {
        choose(1);
        verify(Qt.colorEqual(find.symbol(sidebar, "shippingbox").color, Theme.blue));
        for (const name of ["trash", "square.stack.3d.up", "doc.text", "arrow.down.circle"])
            verify(Qt.colorEqual(find.symbol(sidebar, name).color, Theme.secondary), name);
    }

    function test_with_none_picked_every_symbol_is_secondary() {
        for (const name of ["trash", "shippingbox", "square.stack.3d.up", "doc.text", "arrow.down.circle"])
            verify(Qt.colorEqual(find.symbol(sidebar, name).color, Theme.secondary), name);
    }

    function test_a_click_picks() {
        mouseClick(row("App Data"));
        compare(sidebar.log, [2]);
        tryCompare(row("App Data").Accessible, "selected", true);
        compare(row("Log Files").Accessible.selected, false);
    }

    function test_a_row_shows_that_it_is_pressed() {
        const item = row("App Data");
        mousePress(item);
        verify(Qt.colorEqual(item.background.color, Theme.materialPressed));
        mouseRelease(item);
        verify(!Qt.colorEqual(item.background.color, Theme.materialPressed));
    }

    function test_a_touch_picks() {
        const touched = touchEvent(row("App Data"));
        touched.press(0, row("App Data")).commit();
        touched.release(0, row("App Data")).commit();
        compare(sidebar.log, [2]);
    }

    function test_a_screen_reader_picks() {
        row("App Data").Accessible.pressAction();
        compare(sidebar.log, [2]);
    }

    function test_a_click_on_the_picked_row_keeps_it() {
        choose(2);
        mouseClick(row("App Data"));
        compare(sidebar.log, [2]);
    }

    function test_a_click_on_the_empty_part_picks_none() {
        choose(2);
        mouseClick(sidebar, 120, 400);
        compare(sidebar.log, [-1]);
    }

    function test_a_control_click_on_the_picked_row_picks_none() {
        choose(2);
        mouseClick(row("App Data"), 20, 10, Qt.LeftButton, Qt.ControlModifier);
        compare(sidebar.log, [-1]);
    }

    function test_a_control_click_on_another_row_picks_it() {
        choose(2);
        mouseClick(row("Log Files"), 20, 10, Qt.LeftButton, Qt.ControlModifier);
        compare(sidebar.log, [3]);
    }

    function test_tab_reaches_the_picked_row() {
        choose(3);
        sidebar.forceActiveFocus(Qt.TabFocusReason);
        list().forceActiveFocus(Qt.TabFocusReason);
        compare(row("Log Files").activeFocus, true);
    }

    function test_keys_walk_the_rows_and_stay_inside_data() {
        return [
            { tag: "down", key: Qt.Key_Down, first: 0, goals: [1, 2, 3, 4, 4] },
            { tag: "up", key: Qt.Key_Up, first: 4, goals: [3, 2, 1, 0, 0] },
            { tag: "end", key: Qt.Key_End, first: 1, goals: [4, 4] },
            { tag: "home", key: Qt.Key_Home, first: 3, goals: [0, 0] },
            { tag: "page down", key: Qt.Key_PageDown, first: 1, goals: [4, 4] },
            { tag: "page up", key: Qt.Key_PageUp, first: 3, goals: [0, 0] }
        ];
    }

    function test_keys_walk_the_rows_and_stay_inside(data) {
        choose(data.first);
        list().forceActiveFocus(Qt.TabFocusReason);
        for (const goal of data.goals) {
            keyClick(data.key);
            tryCompare(sidebar, "selectedCategory", goal);
            compare(row(test.categoryNames[goal]).activeFocus, true);
            compare(row(test.categoryNames[goal]).visualFocus, true);
        }
        compare(sidebar.log, data.goals);
    }

    function test_a_click_after_the_keyboard_shows_no_ring() {
        choose(0);
        list().forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Down);
        tryCompare(row("Package Caches"), "visualFocus", true);
        mouseClick(row("Log Files"));
        tryCompare(sidebar, "selectedCategory", 3);
        compare(row("Log Files").visualFocus, false);
    }

    function test_a_key_with_none_picked_picks_the_first_or_the_last_data() {
        const key = (name, goal) => ({ tag: name, key: Qt[`Key_${name}`], goal: goal });
        return [key("Down", 0), key("Up", 0), key("Home", 0), key("PageUp", 0), key("End", 4), key("PageDown", 4)];
    }

    function test_a_key_with_none_picked_picks_the_first_or_the_last(data) {
        list().forceActiveFocus(Qt.TabFocusReason);
        keyClick(data.key);
        compare(sidebar.log, [data.goal]);
    }

    function test_other_keys_walk_nowhere() {
        choose(2);
        list().forceActiveFocus(Qt.TabFocusReason);
        for (const key of [Qt.Key_Left, Qt.Key_Right, Qt.Key_X])
            keyClick(key);
        compare(sidebar.log, []);
    }

    function test_keys_pick_the_row_that_has_the_focus_data() {
        return [{ tag: "Space", key: Qt.Key_Space }, { tag: "Return", key: Qt.Key_Return }];
    }

    function test_keys_pick_the_row_that_has_the_focus(data) {
        list().forceActiveFocus(Qt.TabFocusReason);
        keyClick(data.key);
        compare(sidebar.log, [0]);
    }

    function test_rows_are_list_items_with_their_caption_as_description() {
        for (const name of test.categoryNames)
            verify(row(name) !== null, name);
        compare(row("Program Caches").Accessible.description, "3 items · 4 MB");
        compare(list().Accessible.role, Accessible.List);
    }

    function tips(): var {
        return find.seen(sidebar).filter(item => item.isAsked && item.tip !== null).map(hint => hint.tip.text);
    }

    function test_the_picked_row_and_the_heading_tell_the_way_back() {
        const way = "Escape shows the overview of all categories";
        const heading = find.label(sidebar, "Categories");
        compare(heading.Accessible.description, "");
        choose(2);
        compare(heading.Accessible.description, way);
        compare(row("App Data").Accessible.description, "0 items · Zero KB. " + way);
        compare(row("Log Files").Accessible.description, "1 items · 1 byte");
        mouseMove(heading);
        compare(tips(), [way]);
        mouseMove(row("App Data"));
        compare(tips(), [way]);
        mouseMove(row("Log Files"));
        compare(tips(), []);
        choose(-1);
        mouseMove(row("App Data"));
        compare(tips(), []);
    }

    function test_they_tell_of_no_way_back_where_there_is_none() {
        choose(2);
        hasWayBack = false;
        compare(find.label(sidebar, "Categories").Accessible.description, "");
        compare(row("App Data").Accessible.description, "0 items · Zero KB");
    }

    function test_a_row_just_picked_tells_nothing() {
        mouseMove(row("App Data"));
        mouseClick(row("App Data"));
        tryCompare(sidebar, "selectedCategory", 2);
        compare(tips(), []);
    }

    function test_captions_follow_the_model() {
        categories.setProperty(0, "caption", "1 items · 2 KB");
        compare(find.label(row("Program Caches"), "1 items · 2 KB").visible, true);
        categories.setProperty(0, "caption", "3 items · 4 MB");
    }

    function test_is_mirrored_right_to_left() {
        sidebar.LayoutMirroring.enabled = true;
        sidebar.LayoutMirroring.childrenInherit = true;
        const item = row("Log Files");
        const frame = find.symbol(item, "doc.text").parent;
        compare(frame.mapToItem(item, 0, 0).x + 20, item.width - item.rightPadding);
        sidebar.LayoutMirroring.enabled = false;
    }
}
