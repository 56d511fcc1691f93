import QtQuick
import QtTest
import Drossbin.Views
import ".."

TestCase {
    id: test

    name: "FilterField"
    when: windowShown
    width: 400
    height: 100
    visible: true

    Finder {
        id: find
    }

    Names {
        id: names
    }

    FilterField {
        id: filter

        property list<string> log: []
        property int steps: 0

        x: 20
        y: 20
        width: 300
        searchText: ""
        onEdited: text => {
            filter.log = filter.log.concat([text]);
            filter.searchText = text;
        }
        onMovedDown: ++filter.steps
    }

    function init() {
        // Said of a script that the typeface asked for does not have; another one is taken then.
        failOnWarning(/^(?! *OpenType support missing)/);
        filter.searchText = "";
        filter.log = [];
        filter.steps = 0;
    }

    function input(): Item {
        return find.control(filter, Accessible.EditableText, "Filter items...");
    }

    function placeholder(): Item {
        return find.seen(filter).find(item => item.text === "Filter items...") ?? null;
    }

    function clearButton(): Item {
        return find.button(filter, "Clear filter");
    }

    function test_is_a_text_field_named_after_its_placeholder() {
        verify(input() !== null);
        verify(placeholder() !== null);
    }

    function test_every_key_stroke_narrows() {
        mouseClick(filter);
        keyClick("a");
        keyClick("r");
        keyClick("c");
        compare(filter.log.join("|"), "a|ar|arc");
        keyClick(Qt.Key_Backspace);
        compare(filter.searchText, "ar");
    }

    function test_cursor_stays_where_it_is_when_the_text_is_written_back() {
        filter.searchText = "abcd";
        mouseClick(filter);
        input().cursorPosition = 2;
        keyClick("x");
        compare(filter.searchText, "abxcd");
        compare(input().cursorPosition, 3);
    }

    function test_follows_the_text_that_is_shared() {
        filter.searchText = "logs";
        compare(input().text, "logs");
        compare(placeholder(), null);
        mouseClick(filter);
        keyClick(Qt.Key_End);
        keyClick("x");
        filter.searchText = "other";
        compare(input().text, "other");
    }

    function test_clear_button_is_there_only_with_a_text() {
        compare(clearButton(), null);
        filter.searchText = "a";
        verify(clearButton() !== null);
        compare(find.symbol(clearButton(), "xmark.circle.fill").visible, true);
    }

    function test_clear_button_empties_the_text_and_leaves_the_cursor_in_the_field() {
        filter.searchText = "abc";
        waitForRendering(filter, 200);
        mouseClick(clearButton());
        compare(filter.log.join("|"), "");
        compare(filter.log.length, 1);
        compare(filter.searchText, "");
        compare(input().activeFocus, true);
    }

    function test_escape_empties_the_text() {
        filter.searchText = "abc";
        mouseClick(filter);
        keyClick(Qt.Key_Escape);
        compare(filter.searchText, "");
    }

    function test_escape_in_an_empty_field_is_left_to_the_list() {
        mouseClick(filter);
        keyClick(Qt.Key_Escape);
        compare(filter.log.length, 0);
    }

    function test_down_moves_on_to_the_list() {
        mouseClick(filter);
        keyClick(Qt.Key_Down);
        compare(filter.steps, 1);
        keyClick(Qt.Key_Up);
        compare(filter.steps, 1);
    }

    function test_is_equally_high_in_all_scripts_data() {
        return names.rows;
    }

    function test_is_equally_high_in_all_scripts(data) {
        const height = filter.height;
        filter.searchText = data.name;
        compare(filter.height, height);
        compare(input().height, Theme.lineHeight(Theme.body));
    }

    function test_has_its_measures() {
        const panel = filter.children[0];
        compare(panel.radius, 8);
        verify(Qt.colorEqual(panel.color, Theme.tinted(Theme.quaternary, 0.5)));
        const glass = find.symbol(filter, "magnifyingglass");
        compare(glass.mapToItem(filter, 0, 0).x, 6);
        verify(Qt.colorEqual(glass.color, Theme.secondary));
        compare(filter.height, input().height + 12);
        compare(input().mapToItem(filter, 0, 0).y, 6);
        tryVerify(() => input().mapToItem(filter, input().width, 0).x === filter.width - 6);
    }

    function test_find_selects_what_is_there() {
        filter.searchText = "abc";
        filter.find();
        compare(input().activeFocus, true);
        compare(input().selectedText, "abc");
    }

    function test_placeholder_begins_2_after_the_caret() {
        compare(placeholder().x, 2);
        compare(placeholder().width, input().width - 2);
    }

    function test_right_to_left_every_text_begins_at_the_magnifying_glass() {
        filter.LayoutMirroring.enabled = true;
        filter.LayoutMirroring.childrenInherit = true;
        compare(placeholder().x, 0);
        compare(placeholder().width, input().width - 2);
        compare(placeholder().effectiveHorizontalAlignment, Text.AlignRight);
        filter.searchText = "chrome";
        compare(input().effectiveHorizontalAlignment, TextInput.AlignRight);
        filter.LayoutMirroring.enabled = false;
        compare(input().effectiveHorizontalAlignment, TextInput.AlignLeft);
    }
}
