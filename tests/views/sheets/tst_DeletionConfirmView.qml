import QtQuick
import QtTest
import Drossbin.Views
import ".."

TestCase {
    id: test

    name: "DeletionConfirmView"
    when: windowShown
    width: 900
    height: 650
    visible: true

    readonly property string advice: "Deleting browser caches may remove saved passwords, autofill data, and login sessions. Make sure your passwords are backed up or synced before proceeding."

    Finder {
        id: find
    }

    ListModel {
        id: three
    }

    ListModel {
        id: many
    }

    ListModel {
        id: none
    }

    Component {
        id: viewComponent

        DeletionConfirmView {
            property list<string> log: []

            tallest: 618
            title: "Delete 3 items?"
            selectedSizeText: "2 GB"
            hasBrowserItems: false
            selectedItems: three
            onConfirmed: log = log.concat(["confirm"])
            onCancelled: log = log.concat(["cancel"])
        }
    }

    function initTestCase() {
        for (let index = 0; index < 1000; ++index)
            many.append({ name: "item " + index, path: "/home/ada/item " + index, sizeText: "1 KB", riskColor: "green", riskLabel: "Safe to Clear", riskSymbol: "checkmark.circle.fill" });
    }

    function fill() {
        three.clear();
        for (const [name, size, color, label, symbol] of [["com.google.Chrome", "1.1 GB", "green", "Safe to Clear", "checkmark.circle.fill"],
            ["<h1>x</h1>", "888 MB", "orange", "Review First", "exclamationmark.triangle.fill"], ["Keychains", "1 byte", "red", "Protected", "xmark.octagon.fill"]])
            three.append({ name: name, path: "/home/ada/" + name, sizeText: size, riskColor: color, riskLabel: label, riskSymbol: symbol });
    }

    function init() {
        failOnWarning(/.?/);
        fill();
        Theme.animated = false;
    }

    function make(properties: var): DeletionConfirmView {
        const view = createTemporaryObject(viewComponent, test, properties ?? {});
        waitForRendering(view, 100);
        return view;
    }

    function list(view: DeletionConfirmView): ListView {
        return find.control(view, Accessible.List, "Selected items");
    }

    function test_shows_what_is_about_to_be_deleted() {
        compare(find.texts(make()).join("|"), ["Delete 3 items?", "This action cannot be undone.", "Space to be reclaimed:", "2 GB",
            "com.google.Chrome", "1.1 GB", "<h1>x</h1>", "888 MB", "Keychains", "1 byte"].join("|"));
    }

    function test_begins_with_a_warning_sign_of_40_in_orange() {
        const symbol = find.symbol(make(), "exclamationmark.triangle.fill");
        compare(symbol.size, 40);
        verify(Qt.colorEqual(symbol.color, Theme.symbolOrange));
    }

    function test_stands_20_apart_padded_24() {
        const view = make({ hasBrowserItems: true });
        const blocks = [find.symbol(view, "exclamationmark.triangle.fill"), find.label(view, view.title).parent, find.label(view, "2 GB").parent,
            find.label(view, "Browser data selected").parent.parent, list(view).parent, find.button(view, "Cancel")];
        let bottom = 24 - 20;
        for (const block of blocks) {
            compare(block.mapToItem(view, 0, 0).y, bottom + 20);
            bottom += 20 + block.height;
        }
        compare(bottom, view.height - 24);
        compare(list(view).parent.mapToItem(view, 0, 0).x, 24);
        compare(list(view).parent.width, view.width - 48);
        compare(find.button(view, "Confirm & Delete").mapToItem(view, find.button(view, "Confirm & Delete").width, 0).x, view.width - 24);
    }

    function test_rows_carry_the_symbol_and_colour_of_their_risk() {
        const view = make();
        const signs = [["com.google.Chrome", "checkmark.circle.fill", Theme.green], ["<h1>x</h1>", "exclamationmark.triangle.fill", Theme.orange], ["Keychains", "xmark.octagon.fill", Theme.red]];
        for (const [name, symbol, color] of signs) {
            const row = find.control(view, Accessible.ListItem, name);
            verify(Qt.colorEqual(find.symbol(row, symbol).color, color));
        }
    }

    function test_rows_are_list_items_named_after_their_items() {
        const rows = find.seen(list(make())).filter(item => item.Accessible.role === Accessible.ListItem);
        compare(rows.map(row => row.Accessible.name).join("|"), "com.google.Chrome|<h1>x</h1>|Keychains");
    }

    function test_items_of_one_name_are_told_apart_by_their_paths() {
        const view = make();
        const row = find.control(view, Accessible.ListItem, "Keychains");
        compare(row.Accessible.description, "Protected, /home/ada/Keychains");
        const place = row.mapToItem(list(view), 2, 2);
        compare(list(view).tipAt(place.x, place.y), "/home/ada/Keychains");
        compare(list(view).tipAt(2, list(view).height - 1), "");
    }

    function test_the_pointer_on_an_item_shows_its_path() {
        const rows = list(make());
        const row = find.control(rows, Accessible.ListItem, "Keychains");
        const tips = () => Array.from(rows.children).map(child => child.tip).filter(tip => tip?.opened).map(tip => tip.text);
        mouseMove(row, 100, 10);
        tryVerify(() => tips().length > 0, 3000);
        compare(tips(), ["/home/ada/Keychains"]);
        keyClick(Qt.Key_Shift);
        keyClick(Qt.Key_PageDown);
        tryVerify(() => tips().length === 0);
        mouseMove(find.control(rows, Accessible.ListItem, "com.google.Chrome"), 100, 10);
        tryVerify(() => tips().length > 0, 3000);
        compare(tips(), ["/home/ada/com.google.Chrome"]);
        mouseMove(test, 1, 1);
        tryVerify(() => tips().length === 0);
    }

    function test_sizes_line_up_digit_by_digit() {
        verify(find.label(make(), "888 MB") instanceof FigureLabel);
    }

    function test_sizes_end_in_one_column() {
        const view = make();
        const ends = ["1.1 GB", "888 MB", "1 byte"].map(text => {
            const size = find.label(view, text);
            return size.mapToItem(view, size.width, 0).x;
        });
        compare(ends[0], ends[1]);
        compare(ends[1], ends[2]);
    }

    function test_warns_of_browser_data_only_when_there_is_some() {
        compare(find.label(make(), "Browser data selected"), null);
        const view = make({ hasBrowserItems: true });
        verify(find.label(view, "Browser data selected") !== null);
        const text = find.label(view, test.advice);
        compare(text.truncated, false);
        const box = text.parent.parent;
        compare(box.border.width, 1);
        verify(Qt.colorEqual(box.border.color, Theme.alertEdge));
        compare(box.radius, 8);
        verify(box.color.a > 0 && box.color.a < 0.2);
        const symbol = find.symbol(box, "exclamationmark.triangle.fill");
        verify(Qt.colorEqual(symbol.color, Theme.orange));
        compare(symbol.mapToItem(box, 0, 0).y, text.parent.mapToItem(box, 0, 0).y);
    }

    function test_warning_lines_up_with_the_list_below() {
        const view = make({ hasBrowserItems: true });
        const row = find.control(view, Accessible.ListItem, "com.google.Chrome");
        const left = item => item.mapToItem(view, 0, 0).x;
        compare(left(find.label(view, "Browser data selected")), left(find.label(view, "com.google.Chrome")));
        const sign = find.symbol(find.label(view, "Browser data selected").parent.parent, "exclamationmark.triangle.fill");
        compare(left(sign), left(find.symbol(row, "checkmark.circle.fill")));
    }

    function test_list_is_as_high_as_its_rows_but_at_most_200() {
        const few = list(make()).parent;
        compare(few.height, 3 * 28 + 8);
        verify(list(make({ selectedItems: many })).parent.height <= 200);
    }

    function test_a_list_that_goes_on_is_cut_through_a_row_data() {
        return [
            { tag: "where there is room", tallest: 618, warned: true, rows: 6.5 },
            { tag: "where it is a little low", tallest: 430, warned: false, rows: 5.5 },
            { tag: "where it is low", tallest: 345, warned: false, rows: 2.5 },
            { tag: "where it is low and all moves together", tallest: 408, warned: true, rows: 3.5 },
            { tag: "where it is very low", tallest: 368, warned: true, rows: 1.5 },
            { tag: "where there is none", tallest: 300, warned: true, rows: 1.5 }
        ];
    }

    function test_a_list_that_goes_on_is_cut_through_a_row(data) {
        const view = make({ selectedItems: many, hasBrowserItems: data.warned, tallest: data.tallest });
        compare(list(view).parent.height, 4 + data.rows * 28);
        verify(view.height <= data.tallest);
    }

    function test_all_moves_together_only_where_two_rows_and_a_half_find_no_room_otherwise() {
        const roomy = make({ selectedItems: many, hasBrowserItems: true });
        const lowest = roomy.height - list(roomy).height + 4 + 2.5 * 28;
        for (const isTight of [false, true]) {
            const view = make({ selectedItems: many, hasBrowserItems: true, tallest: isTight ? lowest - 1 : lowest });
            compare(find.symbol(view, "exclamationmark.triangle.fill").mapToItem(view, 0, 0).y, isTight ? 16 : 24);
            compare(list(view).mapToItem(find.button(view, "Cancel"), 0, list(view).height).y, isTight ? -8 : -20);
            verify(list(view).height >= 74);
        }
    }

    function test_where_even_a_short_list_finds_no_room_all_but_the_buttons_scrolls() {
        const view = make({ selectedItems: many, hasBrowserItems: true, tallest: 300 });
        compare(view.height, 300);
        const top = item => item.mapToItem(view, 0, 0).y;
        const cancel = find.button(view, "Cancel");
        compare(top(cancel) + cancel.height, 300 - 16);
        compare(top(find.symbol(view, "exclamationmark.triangle.fill")), 16);
        verify(top(list(view)) + list(view).height > top(cancel));
        list(view).forceActiveFocus(Qt.TabFocusReason);
        fuzzyCompare(top(list(view)) + list(view).height, top(cancel) - 8, 0.01);
        cancel.forceActiveFocus(Qt.TabFocusReason);
        compare(top(find.symbol(view, "exclamationmark.triangle.fill")), 16);
    }

    function test_a_short_list_that_has_to_be_scrolled_to_is_a_stop_of_the_keyboard() {
        three.remove(1, 2);
        const view = make({ hasBrowserItems: true, tallest: 300 });
        compare(list(view).height, 28 + 8);
        compare(list(view).activeFocusOnTab, true);
        compare(list(make({ hasBrowserItems: true })).activeFocusOnTab, false);
    }

    function test_rows_begin_4_inside_the_panel_and_scroll_to_its_edge() {
        const rows = list(make({ selectedItems: many }));
        compare(rows.itemAtIndex(0).mapToItem(rows.parent, 0, 0).y, 4);
        compare(rows.mapToItem(rows.parent, 0, 0).y, 0);
        compare(rows.height, rows.parent.height);
    }

    function test_list_with_room_for_all_its_rows_is_no_stop_of_the_keyboard() {
        compare(list(make()).activeFocusOnTab, false);
        compare(list(make({ selectedItems: many })).activeFocusOnTab, true);
    }

    function test_list_builds_only_the_rows_in_view() {
        const view = make({ selectedItems: many });
        verify(list(view).contentItem.children.length < 40);
    }

    function test_nothing_selected_is_an_empty_list_that_can_be_confirmed() {
        const view = make({ title: "Delete 0 items?", selectedItems: none, selectedSizeText: "Zero KB" });
        compare(list(view).count, 0);
        mouseClick(find.button(view, "Confirm & Delete"));
        compare(view.log.join(), "confirm");
    }

    function test_buttons_say_what_was_asked_for() {
        const view = make();
        mouseClick(find.button(view, "Cancel"));
        compare(view.log.join(), "cancel");
        mouseClick(find.button(view, "Confirm & Delete"));
        compare(view.log.join(), "cancel,confirm");
    }

    function test_the_harmless_button_has_the_focus_first() {
        const view = make();
        view.forceActiveFocus(Qt.TabFocusReason);
        compare(find.button(view, "Cancel").activeFocus, true);
        keyClick(Qt.Key_Tab);
        compare(find.button(view, "Confirm & Delete").activeFocus, true);
        compare(find.button(view, "Confirm & Delete").variant, "danger");
    }

    function test_arrows_scroll_a_long_list_to_its_end_and_no_further() {
        const rows = list(make({ selectedItems: many }));
        rows.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Up);
        compare(rows.contentY, -4);
        keyClick(Qt.Key_Down);
        compare(rows.contentY, 28);
        for (let step = 0; step < 1000; ++step)
            keyClick(Qt.Key_Down);
        compare(rows.contentY, 1000 * 28 + 4 - rows.height);
    }

    function test_pages_scroll_a_long_list_too() {
        const rows = list(make({ selectedItems: many }));
        rows.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_PageDown);
        compare(rows.contentY, rows.height - 4);
        keyClick(Qt.Key_PageUp);
        compare(rows.contentY, -4);
        keyClick(Qt.Key_End);
        compare(rows.contentY, 1000 * 28 + 4 - rows.height);
        keyClick(Qt.Key_Home);
        compare(rows.contentY, -4);
    }

    function test_buttons_are_equally_wide() {
        const view = make();
        compare(find.button(view, "Cancel").width, find.button(view, "Confirm & Delete").width);
    }

    function test_fits_into_the_smallest_window() {
        verify(make({ hasBrowserItems: true, selectedItems: many }).height <= 650 - 32);
    }

    function test_long_names_lose_their_middle_before_the_size() {
        many.setProperty(0, "name", "n".repeat(255));
        const view = make({ selectedItems: many });
        const name = find.label(view, "n".repeat(255));
        compare(name.elide, Text.ElideMiddle);
        compare(name.truncated, true);
        many.setProperty(0, "name", "item 0");
    }
}
