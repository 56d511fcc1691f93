import QtQuick
import QtTest
import Drossbin.Views
import ".."

TestCase {
    id: test

    name: "CategoryListView"
    when: windowShown
    width: 900
    height: 650
    visible: true

    readonly property string warning: "Selected items may contain saved passwords, autofill data, and login sessions."

    Finder {
        id: find
    }

    ListModel {
        id: items
    }

    CategoryListView {
        id: view

        property list<string> log: []

        width: 660
        height: 650
        name: "Package Caches"
        icon: "shippingbox"
        subtitle: "npm, Homebrew, pip, yarn"
        sizeText: "8.1 GB"
        categorySummary: "2 selected · 5 MB"
        searchText: ""
        items: items
        hasSelection: false
        hasBrowserData: false
        overallSummary: "3 items · 4 MB"
        onSelectAllPressed: view.note("select")
        onDeselectAllPressed: view.note("deselect")
        onSearchEdited: text => {
            view.note("search " + text);
            view.searchText = text;
        }
        onToggled: row => {
            view.note("toggle " + row);
            items.setProperty(row, "isSelected", !items.get(row).isSelected);
        }
        onClearPressed: view.note("clear")
        onDeletePressed: view.note("delete")
        onDismissed: view.note("dismiss")

        function note(what: string): void {
            view.log = view.log.concat([what]);
        }
    }

    function item(index: int): var {
        const isProtected = index % 5 === 3;
        return {
            name: "item " + index,
            path: "/home/user/item " + index,
            symbol: "shippingbox",
            hasNote: index % 2 === 0,
            note: "note " + index,
            riskColor: isProtected ? "red" : "green",
            riskLabel: isProtected ? "Protected" : "Safe to Clear",
            riskSymbol: isProtected ? "xmark.octagon.fill" : "checkmark.circle.fill",
            dateText: "4 wk. ago",
            sizeText: (1000 - index) + " KB",
            isSelected: false,
            isProtected: isProtected
        };
    }

    function init() {
        failOnWarning(/.?/);
        Theme.animated = false;
        fill(50);
        view.searchText = "";
        view.hasSelection = false;
        view.hasBrowserData = false;
        view.log = [];
        find.button(view, "Select All Safe").forceActiveFocus();
    }

    function fill(count: int) {
        items.clear();
        for (let index = 0; index < count; ++index)
            items.append(item(index));
        list().start();
        waitForRendering(view, 100);
    }

    function list(): ListView {
        return find.control(view, Accessible.List, "Items");
    }

    function row(index: int): ItemRowView {
        return list().itemAtIndex(index);
    }

    function focusRing(): FocusRing {
        return find.seen(list().contentItem).find(item => item instanceof FocusRing && item.parent.z === 1) ?? null;
    }

    function checkBox(index: int): Item {
        return find.control(row(index), Accessible.CheckBox, "item " + index);
    }

    function filter(): Item {
        return find.control(view, Accessible.EditableText, "Filter items...");
    }

    function topOf(item: Item): real {
        return item.mapToItem(view, 0, 0).y;
    }

    function test_header_shows_the_category() {
        compare(find.texts(view).slice(0, 4).join("|"), "Package Caches|npm, Homebrew, pip, yarn|8.1 GB|2 selected · 5 MB");
        const title = find.label(view, "Package Caches");
        const subtitle = find.label(view, "npm, Homebrew, pip, yarn");
        const size = find.label(view, "8.1 GB");
        const symbol = find.symbol(view, "shippingbox");
        compare(title.font.pixelSize, Theme.title2);
        compare(title.font.weight, Font.Bold);
        compare(symbol.size, Theme.title2);
        verify(Qt.colorEqual(symbol.color, Theme.blue));
        compare(subtitle.font.pixelSize, Theme.caption);
        verify(Qt.colorEqual(subtitle.color, Theme.secondary));
        compare(size.font.pixelSize, Theme.title3);
        verify(Qt.colorEqual(size.color, Theme.secondary));
        compare(topOf(size) - topOf(title.parent) - title.parent.height, 4);
        compare(topOf(subtitle) + subtitle.baselineOffset, topOf(title) + title.baselineOffset);
    }

    function test_first_line_is_in_the_middle_of_the_top_line() {
        const middle = item => topOf(item) + item.height / 2;
        verify(Math.abs(middle(find.label(view, "Package Caches")) - Theme.topLine / 2) <= 0.5);
        verify(Math.abs(middle(find.symbol(view, "shippingbox")) - Theme.topLine / 2) <= 1, "on whole pixels");
    }

    function test_controls_row_counts_in_blue_also_when_nothing_is_selected() {
        view.categorySummary = "0 selected · Zero KB";
        const summary = find.label(view, "0 selected · Zero KB");
        verify(Qt.colorEqual(summary.color, Theme.blue));
        compare(summary.font.pixelSize, Theme.caption);
        compare(summary.truncated, false);
        view.categorySummary = "2 selected · 5 MB";
    }

    function test_buttons_ask_for_the_whole_category() {
        for (const name of ["Select All Safe", "Deselect All"])
            compare(find.button(view, name).variant, "secondary");
        mouseClick(find.button(view, "Select All Safe"));
        mouseClick(find.button(view, "Deselect All"));
        compare(view.log.join("|"), "select|deselect");
    }

    function test_rows_stand_2_apart_padded_8_and_4() {
        compare(row(0).mapToItem(list(), 0, 0), Qt.point(8, 4));
        compare(row(0).width, list().width - 16);
        compare(row(1).y - row(0).y - row(0).height, 2);
    }

    function test_rows_begin_on_whole_pixels_at_every_scale() {
        for (let index = 0; index < 5; ++index) {
            for (const scale of [1, 1.25, 1.5, 1.75, 2])
                compare(topOf(row(index)) * scale % 1, 0, `row ${index} at ${scale}`);
        }
    }

    function test_filter_stands_12_from_what_is_below_it_or_hardly_more() {
        const gap = topOf(list()) - 1 - topOf(filter().parent.parent) - filter().parent.parent.height;
        verify(gap >= 12 && gap < 16, gap);
    }

    function test_a_page_is_what_is_in_view() {
        view.height += 9.5 * (row(0).height + 2) - list().height;
        compare(list().page, 9);
        list().enter();
        keyClick(Qt.Key_PageDown);
        compare(list().currentIndex, list().page);
        compare(list().currentItem.activeFocus, true);
        keyClick(Qt.Key_PageUp);
        compare(list().currentIndex, 0);
        compare(row(0).activeFocus, true);
        view.height = 650;
    }

    function test_no_items_leave_the_list_empty_and_the_rest_in_place() {
        const before = topOf(list());
        fill(0);
        compare(list().count, 0);
        compare(topOf(list()), before);
        verify(find.button(view, "Select All Safe") !== null);
        verify(filter() !== null);
        keyClick(Qt.Key_Space);
    }

    function test_rows_may_go_as_soon_as_they_come() {
        for (let round = 0; round < 100; ++round) {
            fill(50);
            wait(round % 3);
            items.remove(5, 45);
            wait(round % 2);
        }
        compare(list().count, 5);
    }

    function test_check_box_toggles_its_row() {
        mouseClick(checkBox(1));
        compare(view.log.join("|"), "toggle 1");
        compare(checkBox(1).Accessible.checked, true);
        compare(checkBox(2).Accessible.checked, false);
    }

    function test_a_protected_row_cannot_be_toggled() {
        mouseClick(checkBox(3));
        list().enter();
        list().walkTo(3);
        keyClick(Qt.Key_Space);
        compare(view.log.length, 0);
        compare(list().showsFocus, true);
    }

    function test_selection_bar_is_there_only_with_a_selection() {
        compare(find.button(view, "Delete Selected"), null);
        compare(find.label(view, "3 items · 4 MB"), null);
        view.hasSelection = true;
        waitForRendering(view, 100);
        mouseClick(find.button(view, "Delete Selected"));
        mouseClick(find.button(view, "Clear Selection"));
        compare(view.log.join("|"), "delete|clear");
        verify(find.label(view, "3 items · 4 MB") !== null);
    }

    function test_warning_is_there_only_with_a_browsers_data() {
        view.hasSelection = true;
        compare(find.label(view, test.warning), null);
        view.hasBrowserData = true;
        verify(find.label(view, test.warning) !== null);
        view.hasSelection = false;
        compare(find.label(view, test.warning), null);
    }

    function test_list_keeps_its_place_when_the_selection_changes() {
        list().contentY = 500;
        view.hasSelection = true;
        items.setProperty(20, "isSelected", true);
        waitForRendering(view, 100);
        compare(list().contentY, 500);
        compare(list().currentIndex, 0);
    }

    function test_another_category_starts_at_its_top() {
        list().contentY = 500;
        list().currentIndex = 12;
        view.name = "App Data";
        const started = [list().contentY, list().currentIndex];
        view.name = "Package Caches";
        compare(started.join(), "-4,0");
    }

    function test_arrows_walk_the_rows_and_space_toggles() {
        list().enter();
        compare(row(0).activeFocus, true);
        compare(list().showsFocus, true);
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Down);
        compare(row(2).activeFocus, true);
        compare(list().showsFocus, true);
        compare(focusRing().mapToItem(row(2), 0, 0), Qt.point(0, 0));
        compare(focusRing().width, row(2).width);
        keyClick(Qt.Key_Space);
        keyClick(Qt.Key_Up);
        keyClick(Qt.Key_Return);
        compare(view.log.join("|"), "toggle 2|toggle 1");
    }

    function test_arrows_pass_over_protected_rows_and_stop_at_the_ends() {
        list().enter();
        keyClick(Qt.Key_Up);
        compare(list().currentIndex, 0);
        for (let step = 0; step < 4; ++step)
            keyClick(Qt.Key_Down);
        compare(list().currentIndex, 4);
        compare(row(4).activeFocus, true);
        keyClick(Qt.Key_End);
        compare(list().currentIndex, 49);
        keyClick(Qt.Key_Down);
        compare(list().currentIndex, 49);
        keyClick(Qt.Key_Home);
        compare(list().currentIndex, 0);
        keyClick(Qt.Key_PageDown);
        compare(list().currentIndex, list().page);
        keyClick(Qt.Key_PageUp);
        compare(list().currentIndex, 0);
    }

    function test_current_row_is_scrolled_into_view() {
        list().enter();
        keyClick(Qt.Key_End);
        tryVerify(() => row(49) !== null);
        const last = row(49);
        verify(last.mapToItem(list(), 0, last.height).y <= list().height);
        compare(last.activeFocus, true);
    }

    function test_a_bar_that_comes_up_does_not_cover_the_row_of_the_keyboard() {
        list().enter();
        const lowest = list().indexAt(list().width / 2, list().height - 60);
        list().walkTo(lowest);
        view.hasBrowserData = true;
        view.hasSelection = true;
        waitForRendering(view, 100);
        const current = row(lowest);
        const bottom = current.mapToItem(list(), 0, current.height).y;
        compare(current.activeFocus || list().activeFocus, true);
        list().walkTo(0);
        verify(bottom <= list().height, `${bottom} of ${list().height}`);
    }

    function test_a_bar_that_comes_up_leaves_the_list_where_the_pointer_is_used() {
        const lowest = list().indexAt(list().width / 2, list().height - 60);
        const top = list().contentY;
        list().currentIndex = lowest;
        view.hasSelection = true;
        waitForRendering(view, 100);
        const place = list().contentY;
        list().currentIndex = 0;
        compare(place, top);
    }

    function test_tab_goes_through_every_control_in_reading_order() {
        view.searchText = "x";
        view.hasSelection = true;
        waitForRendering(view, 100);
        const stops = [find.button(view, "Select All Safe"), find.button(view, "Deselect All"), filter(), find.button(view, "Clear filter"),
            row(0), checkBox(0), find.button(row(0), "Information"), find.button(view, "Clear Selection"), find.button(view, "Delete Selected")];
        stops[0].forceActiveFocus(Qt.TabFocusReason);
        for (let stop = 1; stop < stops.length; ++stop) {
            keyClick(Qt.Key_Tab);
            compare(stops[stop].activeFocus, true, "stop " + stop);
        }
        for (let stop = stops.length - 2; stop >= 0; --stop) {
            keyClick(Qt.Key_Backtab);
            compare(stops[stop].activeFocus, true, "back at stop " + stop);
        }
    }

    function test_a_click_shows_no_focus_ring() {
        mouseClick(checkBox(1));
        compare(list().showsFocus, false);
    }

    function test_find_goes_to_the_filter() {
        list().enter();
        keySequence(StandardKey.Find);
        compare(filter().activeFocus, true);
    }

    function test_typing_narrows_at_every_key_stroke() {
        mouseClick(filter());
        keyClick("a");
        keyClick("b");
        compare(view.log.join("|"), "search a|search ab");
    }

    function test_down_in_the_filter_goes_to_the_rows() {
        mouseClick(filter());
        keyClick(Qt.Key_Down);
        compare(row(0).activeFocus, true);
        compare(list().showsFocus, true);
    }

    function test_down_in_the_filter_stays_there_when_it_lets_nothing_through() {
        fill(0);
        mouseClick(filter());
        keyClick(Qt.Key_Down);
        compare(filter().activeFocus, true);
    }

    function test_rows_that_come_back_have_a_current_one_that_tab_reaches() {
        fill(0);
        fill(5);
        filter().forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Tab);
        compare(row(0).activeFocus, true);
        compare(list().showsFocus, true);
    }

    function test_escape_leaves_the_category_data() {
        return [{ tag: "from the rows", fromFilter: false }, { tag: "from the empty filter", fromFilter: true }];
    }

    function test_escape_leaves_the_category(data) {
        if (data.fromFilter)
            mouseClick(filter());
        else
            list().enter();
        keyClick(Qt.Key_Escape);
        compare(view.log.join("|"), "dismiss");
    }

    function test_escape_in_a_filter_with_text_only_empties_it() {
        view.searchText = "abc";
        mouseClick(filter());
        keyClick(Qt.Key_Escape);
        compare(view.log.join("|"), "search ");
    }

    function test_a_popover_closes_with_escape_and_the_category_stays() {
        const information = find.button(row(0), "Information");
        information.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Space);
        compare(row(0).showInfo, true);
        keyClick(Qt.Key_Escape);
        tryCompare(row(0), "showInfo", false);
        compare(view.log.length, 0);
    }

    function test_a_popover_closes_when_its_row_shows_another_item() {
        find.button(row(0), "Information").clicked();
        compare(row(0).showInfo, true);
        items.setProperty(0, "name", "the same item");
        compare(row(0).showInfo, true);
        items.setProperty(0, "path", "/home/ada/another");
        tryCompare(row(0), "showInfo", false);
    }

    function test_rows_that_are_gone_are_not_reached() {
        const last = row(4);
        items.remove(1, items.count - 1);
        tryVerify(() => !last.visible);
        compare(find.seen(list()).filter(item => item instanceof ItemRowView).length, 1);
    }

    function rowNames(): var {
        return find.seen(list()).filter(item => item instanceof ItemRowView).map(item => item.name);
    }

    function test_rows_are_told_in_their_order() {
        const all = rowNames();
        const taken = [];
        for (let index = 1; index < items.count; ++index)
            taken.push(item(index));
        items.remove(1, items.count - 1);
        tryVerify(() => rowNames().length === 1);
        taken.forEach(one => items.append(one));
        tryVerify(() => rowNames().length === all.length);
        compare(rowNames().join("|"), all.join("|"));
    }

    function test_rows_scrolled_to_from_below_are_told_in_their_order() {
        const all = rowNames();
        list().positionViewAtEnd();
        waitForRendering(view, 100);
        for (let y = list().contentY; y > 0; y -= 30) {
            list().contentY = y;
            list().forceLayout();
        }
        list().positionViewAtBeginning();
        waitForRendering(view, 100);
        const top = rowNames().slice(0, 5);
        compare(top.join("|"), all.slice(0, 5).join("|"));
    }

    function test_builds_only_the_rows_in_view() {
        const count = list().contentItem.children.length;
        for (let index = 50; index < 2000; ++index)
            items.append(item(index));
        waitForRendering(view, 100);
        compare(list().contentItem.children.length, count);
        verify(count < 60);
    }

    function test_rows_are_used_again_without_what_they_showed_before() {
        list().positionViewAtEnd();
        waitForRendering(view, 100);
        list().positionViewAtBeginning();
        waitForRendering(view, 100);
        for (let index = 0; index < 5; ++index) {
            compare(row(index).name, "item " + index);
            compare(row(index).showInfo, false);
            compare(row(index).isSelected, false);
        }
    }

    function test_the_whole_of_a_cut_text_is_told_also_in_a_protected_row() {
        const whole = "n".repeat(255);
        items.setProperty(3, "name", whole);
        waitForRendering(view, 100);
        const label = find.label(row(3), whole);
        const place = label.mapToItem(list(), 10, 5);
        compare(list().tipAt(place.x, place.y), whole);
        const path = find.label(row(3), "/home/user/item 3");
        const below = path.mapToItem(list(), 10, 5);
        compare(list().tipAt(below.x, below.y), row(3).hint);
        compare(list().tipAt(1, 1), "");
    }

    /// What the tips of the list say, those too that wait for their moment.
    function tips(): var {
        return Array.from(find.seen(list()).filter(item => item.isAsked && item.tip !== null).map(hint => hint.tip.text));
    }

    function test_a_row_that_is_scrolled_below_the_pointer_says_why_when_that_moves() {
        const place = row(2).mapToItem(view, 300, 10);
        mouseMove(view, place.x, place.y);
        compare(tips(), []);
        list().contentY += row(3).y - row(2).y;
        waitForRendering(view, 100);
        compare(tips(), []);
        mouseMove(view, place.x + 1, place.y);
        compare(tips(), [row(3).hint]);
        mouseMove(view, 1, 1);
        list().positionViewAtBeginning();
    }

    function test_in_a_list_that_is_scrolled_the_tip_is_about_the_row_below_the_pointer() {
        const name = number => `${number} `.repeat(100);
        for (let number = 0; number < items.count; ++number)
            items.setProperty(number, "name", name(number));
        list().positionViewAtIndex(20, ListView.Beginning);
        waitForRendering(view, 100);
        const label = find.label(row(22), name(22));
        mouseMove(label, 10, 5);
        compare(tips(), [name(22)]);
        const hint = find.seen(list()).find(item => item.isAsked);
        compare(hint.place, Qt.rect(label.mapToItem(list(), 10, 0).x, label.mapToItem(list(), 0, 5).y, 0, 16));
        mouseMove(view, 1, 1);
        list().positionViewAtBeginning();
    }

    function test_a_protected_row_says_why_to_the_pointer_and_to_the_keyboard() {
        const other = row(2).mapToItem(list(), 300, 10);
        compare(list().tipAt(other.x, other.y), "");
        verify(row(3).hint !== "");
        mouseMove(row(3), 300, 10);
        tryVerify(() => tips().length === 1);
        compare(tips(), [row(3).hint]);
        mouseMove(view, 1, 1);
        compare(tips(), []);
        list().forceActiveFocus(Qt.TabFocusReason);
        list().walkTo(3);
        compare(tips(), [row(3).hint]);
        list().walkTo(2);
        compare(tips(), []);
    }

    function test_everything_fits_at_any_size_data() {
        return [{ tag: "smallest", width: 659, height: 650 }, { tag: "largest", width: 2319, height: 1440 }];
    }

    function test_everything_fits_at_any_size(data) {
        view.width = data.width;
        view.height = data.height;
        view.hasSelection = true;
        view.hasBrowserData = true;
        view.overallSummary = "100,000 items · 9.22 EB";
        view.categorySummary = "100,000 selected · 9.22 EB";
        waitForRendering(view, 100);
        for (const text of [view.overallSummary, view.categorySummary, test.warning]) {
            const label = find.label(view, text);
            compare(label.truncated, false, text);
            verify(label.mapToItem(view, label.width, 0).x <= data.width, text);
        }
        compare(find.button(view, "Delete Selected").mapToItem(view, 0, 0).y + 37 <= data.height, true);
        verify(list().height > 200);
        view.width = 660;
        view.height = 650;
        view.overallSummary = "3 items · 4 MB";
        view.categorySummary = "2 selected · 5 MB";
    }
}
