import QtQuick
import QtTest
import Drossbin.Views
import ".."

TestCase {
    id: test

    name: "DeletionCompleteView"
    when: windowShown
    width: 900
    height: 650
    visible: true

    Finder {
        id: find
    }

    ListModel {
        id: lines

        ListElement {
            text: "✅ Deleted: npm cache (1.1 GB)"
            isSuccess: true
        }
        ListElement {
            text: "❌ Failed: <b>x</b>: Permission denied"
            isSuccess: false
        }
        ListElement {
            text: "❌ Failed: <b>x</b>: Permission denied"
            isSuccess: false
        }
    }

    ListModel {
        id: many
    }

    ListModel {
        id: none
    }

    Component {
        id: viewComponent

        DeletionCompleteView {
            property int dismissals: 0

            tallest: 618
            freedSpaceText: "1.1 GB"
            log: lines
            firstFailure: -1
            onDismissed: ++dismissals
        }
    }

    function initTestCase() {
        for (let index = 0; index < 1000; ++index)
            many.append({ text: "✅ Deleted: item " + index + " (1 KB)", isSuccess: true });
    }

    function init() {
        failOnWarning(/.?/);
        Theme.animated = false;
    }

    function make(properties: var): DeletionCompleteView {
        const view = createTemporaryObject(viewComponent, test, properties ?? {});
        waitForRendering(view, 100);
        return view;
    }

    function list(view: DeletionCompleteView): ListView {
        return find.control(view, Accessible.List, "Deletion log");
    }

    function test_shows_what_was_freed_and_every_line_of_the_log() {
        compare(find.texts(make()).join("|"), ["Cleanup Complete!", "You freed", "1.1 GB",
            "✅ Deleted: npm cache (1.1 GB)", "❌ Failed: <b>x</b>: Permission denied", "❌ Failed: <b>x</b>: Permission denied"].join("|"));
    }

    function test_has_its_type_and_symbol_sizes() {
        const view = make();
        compare(find.symbol(view, "checkmark.circle.fill").size, 56);
        const title = find.label(view, "Cleanup Complete!");
        compare(title.font.pixelSize, Theme.title);
        compare(title.font.weight, Font.Bold);
        const caption = find.label(view, "You freed");
        compare(caption.font.pixelSize, Theme.caption);
        verify(Qt.colorEqual(caption.color, Theme.secondary));
        const figure = find.label(view, "1.1 GB");
        compare(figure.font.pixelSize, 36);
        compare(figure.font.weight, Font.Bold);
    }

    function test_stands_20_apart_padded_24() {
        const view = make();
        const blocks = [find.symbol(view, "checkmark.circle.fill"), find.label(view, "Cleanup Complete!"), find.label(view, "You freed").parent, list(view).parent, find.button(view, "Done")];
        let bottom = 24 - 20;
        for (const block of blocks) {
            compare(block.mapToItem(view, 0, 0).y, bottom + 20);
            bottom += 20 + block.height;
        }
        compare(bottom, view.height - 24);
        compare(list(view).parent.mapToItem(view, 0, 0).x, 24);
        compare(list(view).parent.width, view.width - 48);
    }

    function test_symbol_is_green_only_when_nothing_failed() {
        const symbol = view => find.symbol(view, "checkmark.circle.fill").color;
        verify(Qt.colorEqual(symbol(make()), Theme.symbolGreen));
        verify(Qt.colorEqual(symbol(make({ firstFailure: 0 })), Theme.symbolOrange));
    }

    function test_the_first_failure_is_in_view_when_it_opens_data() {
        return [{ tag: "the first of all", row: 0 }, { tag: "in the middle", row: 500 }, { tag: "the last", row: 999 }];
    }

    function test_the_first_failure_is_in_view_when_it_opens(data) {
        many.setProperty(data.row, "text", "❌ Failed: x — no");
        const view = make({ log: many, firstFailure: data.row, visible: false });
        view.visible = true;
        const line = find.label(list(view), "❌ Failed: x — no");
        many.setProperty(data.row, "text", "✅ Deleted: item (1 KB)");
        verify(line !== null);
        const top = line.mapToItem(list(view), 0, 0).y;
        verify(top >= 0);
        verify(top + line.height <= list(view).height);
    }

    function test_without_a_failure_it_opens_at_its_first_line() {
        const view = make({ log: many, visible: false });
        view.visible = true;
        compare(list(view).contentY, -4);
    }

    function test_failures_are_red_and_the_rest_is_not() {
        const view = make();
        const labels = find.labels(list(view));
        verify(Qt.colorEqual(labels[0].color, Theme.label));
        verify(Qt.colorEqual(labels[1].color, Theme.red));
        verify(Qt.colorEqual(labels[2].color, Theme.red));
        for (const label of labels) {
            compare(label.font.pixelSize, Theme.caption);
            compare(label.textFormat, Text.PlainText);
        }
    }

    function test_all_lines_are_red_where_everything_failed() {
        const model = createTemporaryQmlObject("import QtQuick; ListModel {}", test);
        for (const name of ["a", "b", "c"])
            model.append({ text: `❌ Failed: ${name}: Permission denied`, isSuccess: false });
        const colors = find.labels(list(make({ log: model, firstFailure: 0 }))).map(label => label.color.toString());
        compare(colors, Array(3).fill(Theme.red.toString()));
    }

    function test_why_an_item_failed_shows_whole_after_a_long_name() {
        const text = `❌ Failed: ${"a long name ".repeat(20)}: Permission denied`;
        const model = createTemporaryQmlObject("import QtQuick; ListModel {}", test);
        model.append({ text: text, isSuccess: false });
        const line = find.label(make({ log: model }), text);
        verify(line.lineCount > 3);
        compare(line.truncated, false);
        compare(line.parent.height, line.lineCount * 18);
        compare(line.height, line.contentHeight);
    }

    function test_lines_are_list_items_named_after_what_they_say() {
        const rows = find.seen(list(make())).filter(item => item.Accessible.role === Accessible.ListItem);
        compare(rows.map(row => row.Accessible.name).join("|"), "✅ Deleted: npm cache (1.1 GB)|❌ Failed: <b>x</b>: Permission denied|❌ Failed: <b>x</b>: Permission denied");
    }

    function test_list_is_at_most_120_high_and_builds_only_what_is_in_view() {
        const view = make({ log: many });
        verify(list(view).parent.height <= 120);
        verify(list(view).contentItem.children.length < 40);
        verify(list(make()).parent.height < 120);
    }

    function test_a_log_that_goes_on_is_cut_through_a_line_data() {
        return [
            { tag: "where there is room", tallest: 618, long: false, lines: 5.5 },
            { tag: "after a long line", tallest: 618, long: true, lines: 5.5 },
            { tag: "where it is low", tallest: 368, long: true, lines: 2.5 }
        ];
    }

    function test_a_log_that_goes_on_is_cut_through_a_line(data) {
        many.setProperty(0, "text", data.long ? "✅ Deleted: " + "a long name ".repeat(15) : "✅ Deleted: a");
        const view = make({ log: many, tallest: data.tallest });
        const edge = list(view).height;
        compare(edge, 4 + data.lines * 18);
        const row = list(view).itemAt(1, list(view).contentY + edge);
        const label = find.labels(row)[0];
        const inLine = (edge - label.mapToItem(list(view), 0, 0).y) % 18;
        verify(inLine > 4 && inLine < 11, `${inLine}`);
        many.setProperty(0, "text", "✅ Deleted: item 0 (1 KB)");
    }

    function test_an_empty_log_is_an_empty_list() {
        const view = make({ log: none, freedSpaceText: "Zero KB" });
        compare(list(view).count, 0);
        compare(find.texts(view).join("|"), "Cleanup Complete!|You freed|Zero KB");
    }

    function test_done_has_the_focus_and_dismisses() {
        const view = make();
        view.forceActiveFocus(Qt.TabFocusReason);
        compare(find.button(view, "Done").activeFocus, true);
        keyClick(Qt.Key_Return);
        compare(view.dismissals, 1);
        mouseClick(find.button(view, "Done"));
        compare(view.dismissals, 2);
        mouseClick(find.label(view, "You freed"));
        compare(view.dismissals, 2);
    }

    function test_fits_into_the_smallest_window() {
        verify(make({ log: many, freedSpaceText: "9,223.37 PB" }).height <= 650 - 32);
    }
}
