import QtQuick
import QtTest
import Drossbin.Views

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

            freedSpaceText: "1.1 GB"
            log: lines
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
        const column = view.children[0];
        compare(column.mapToItem(view, 0, 0), Qt.point(24, 24));
        compare(column.height, view.height - 48);
        let bottom = -20;
        for (let index = 0; index < column.children.length; ++index) {
            compare(column.children[index].y, bottom + 20);
            bottom = column.children[index].y + column.children[index].height;
        }
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

    function test_why_an_item_failed_shows_whole_after_a_long_name() {
        const text = `❌ Failed: ${"a long name ".repeat(20)}: Permission denied`;
        const model = createTemporaryQmlObject("import QtQuick; ListModel {}", test);
        model.append({ text: text, isSuccess: false });
        const line = find.label(make({ log: model }), text);
        verify(line.lineCount > 3);
        compare(line.truncated, false);
        compare(line.height, line.contentHeight);
        compare(line.parent.height, line.height + 8);
    }

    function test_lines_are_list_items_named_after_what_they_say() {
        const rows = find.seen(list(make())).filter(item => item.Accessible.role === Accessible.ListItem);
        compare(rows.map(row => row.Accessible.name).join("|"), "✅ Deleted: npm cache (1.1 GB)|❌ Failed: <b>x</b>: Permission denied|❌ Failed: <b>x</b>: Permission denied");
    }

    function test_list_is_at_most_120_high_and_builds_only_what_is_in_view() {
        const view = make({ log: many });
        compare(list(view).parent.height, 120);
        verify(list(view).contentItem.children.length < 40);
        verify(list(make()).parent.height < 120);
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
        verify(make({ log: many, freedSpaceText: "9,223.37 PB" }).height <= 650);
    }
}
