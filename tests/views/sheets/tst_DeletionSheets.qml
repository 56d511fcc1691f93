import QtQuick
import QtQuick.Templates as T
import QtTest
import Drossbin.App
import Drossbin.Test
import Drossbin.Views
import ".."

Item {
    T.ApplicationWindow {
        id: host

        width: 900
        height: 650
        visible: true

        TestCase {
            id: test

            property DeletionSheets made

            name: "DeletionSheets"
            when: host.active
            visible: true
            width: 900
            height: 650

            Finder {
                id: find
            }

            Component {
                id: session

                HeldContentView {}
            }

            Component {
                id: sheets

                DeletionSheets {}
            }

            function init() {
                failOnWarning(/.?/);
                Theme.animated = false;
                resize({ width: 900, height: 650 });
            }

            // The screens before their state.
            function cleanup() {
                test.made.destroy();
                tryCompare(test, "made", null);
            }

            /// A session after a scan, with everything in it selected.
            function make(properties: var): HeldContentView {
                const content = createTemporaryObject(session, test, properties ?? {});
                test.made = sheets.createObject(test, { content: content });
                content.startScan(true);
                content.smartSelect();
                tryVerify(() => content.shown.hasSelection);
                return content;
            }

            function sheet(name: string): Item {
                return find.control(host.contentItem.parent, Accessible.Dialog, name);
            }

            function open(name: string) {
                tryVerify(() => sheet(name)?.activeFocus ?? false, 5000, name);
            }

            function closed(name: string) {
                tryCompare(sheet(name) ?? test, "visible", sheet(name) === null);
            }

            function confirmed(properties: var): HeldContentView {
                const content = make(properties);
                content.requestDeletion();
                content.confirmDeletion();
                open("Deleting files...");
                return content;
            }

            function dim(): Rectangle {
                return Array.from(host.contentItem.parent.children).find(child => child.color !== undefined);
            }

            function test_dim_covers_the_window_while_a_sheet_is_up() {
                const content = make();
                compare(dim().visible, false);
                content.requestDeletion();
                open("Delete 15 items?");
                compare(dim().opacity, 1);
                verify(Qt.colorEqual(dim().color, Theme.dim));
                compare(dim().width, 900);
                compare(dim().height, 650);
                keyClick(Qt.Key_Escape);
                tryCompare(dim(), "visible", false);
            }

            function test_dim_stays_while_one_sheet_follows_another() {
                Theme.animated = true;
                const content = make();
                content.requestDeletion();
                open("Delete 15 items?");
                tryCompare(dim(), "opacity", 1);
                let brightest = 1;
                dim().opacityChanged.connect(() => brightest = Math.min(brightest, dim().opacity));
                content.confirmDeletion();
                open("Deleting files...");
                content.finish();
                open("Cleanup Complete!");
                closed("Deleting files...");
                compare(brightest, 1);
                content.dismissCompletion();
                tryCompare(dim(), "visible", false);
                content.finish();
            }

            function windows(): var {
                return [
                    { tag: "640 x 400", width: 640, height: 400 },
                    { tag: "700 x 440", width: 700, height: 440 },
                    { tag: "900 x 614", width: 900, height: 614 },
                    { tag: "900 x 650", width: 900, height: 650 }
                ];
            }

            function resize(size: var) {
                host.width = size.width;
                host.height = size.height;
                waitForRendering(host.contentItem, 100);
            }

            /// Whether all of the item is in the window, and at least 16 from its edges.
            function verifyInside(item: Item, what: string) {
                const place = item.mapToItem(null, 0, 0);
                verify(place.x >= 16 && place.y >= 16, what);
                verify(place.x + item.width <= host.width - 16, what);
                verify(place.y + item.height <= host.height - 16, what);
            }

            function test_confirmation_is_inside_the_window_data() {
                return windows();
            }

            function test_confirmation_is_inside_the_window(data) {
                resize(data);
                const content = make({ perCategory: 22, firstName: "Firefox" });
                content.requestDeletion();
                open("Delete 110 items?");
                const made = sheet("Delete 110 items?");
                verifyInside(made, "the sheet");
                const list = find.control(made, Accessible.List, "Selected items");
                const buttons = ["Cancel", "Confirm & Delete"].map(name => find.button(made, name));
                verify(find.label(made, "Browser data selected") !== null);
                buttons.forEach(button => verifyInside(button, button.label));
                verify(buttons[0].mapToItem(buttons[1], buttons[0].width, 0).x < 0);
                list.forceActiveFocus(Qt.TabFocusReason);
                verifyInside(list, "the list");
                verify(list.mapToItem(buttons[0], 0, list.height).y <= 0);
                verify(list.height >= 74 && list.height <= 200);
                compare((list.height - 4) % 28, 14);
            }

            function test_progress_is_inside_the_window_data() {
                return windows();
            }

            function test_progress_is_inside_the_window(data) {
                resize(data);
                const content = confirmed();
                verifyInside(sheet("Deleting files..."), "the sheet");
                content.finish();
            }

            function test_completion_is_inside_the_window_data() {
                return windows();
            }

            function test_completion_is_inside_the_window(data) {
                resize(data);
                const log = Array(40).fill("✅ Deleted: a (1 KB)");
                log[20] = "❌ Failed: b — no";
                const content = confirmed({ log: log });
                content.finish();
                open("Cleanup Complete!");
                const made = sheet("Cleanup Complete!");
                verifyInside(made, "the sheet");
                verifyInside(find.button(made, "Done"), "the button");
                const list = find.control(made, Accessible.List, "Deletion log");
                const failure = find.label(list, "❌ Failed: b — no");
                verify(failure !== null);
                verify(failure.mapToItem(list, 0, 0).y >= 0);
                verify(failure.mapToItem(list, 0, failure.height).y <= list.height);
                list.forceActiveFocus(Qt.TabFocusReason);
                verifyInside(list, "the list");
                verify(list.mapToItem(find.button(made, "Done"), 0, list.height).y <= 0);
                content.dismissCompletion();
                content.finish();
            }

            function test_completion_says_what_failed_first_data() {
                return [{ tag: "something", log: ["✅ a", "❌ b", "❌ c"], said: "You freed Zero KB\n❌ b" }, { tag: "nothing", log: ["✅ a"], said: "You freed Zero KB" }];
            }

            function test_completion_says_what_failed_first(data) {
                const content = confirmed({ log: data.log });
                content.finish();
                open("Cleanup Complete!");
                compare(sheet("Cleanup Complete!").Accessible.description, data.said);
                content.dismissCompletion();
                content.finish();
            }

            function test_no_sheet_is_there_before_it_is_asked_for() {
                make();
                for (const name of ["Delete 15 items?", "Deleting files...", "Cleanup Complete!"])
                    compare(sheet(name), null);
            }

            function test_the_confirmation_follows_the_selection_while_it_is_up() {
                const content = make();
                content.requestDeletion();
                open("Delete 15 items?");
                content.selectedCategory = 2;
                content.deselectAllInCategory();
                open("Delete 12 items?");
                const confirmation = sheet("Delete 12 items?");
                for (const text of ["Delete 12 items?", "12 MB"])
                    verify(find.label(confirmation, text) !== null, text);
                compare(find.control(confirmation, Accessible.List, "Selected items").count, 12);
                content.cancelDeletion();
                closed("Delete 12 items?");
            }

            function test_escape_is_cancel_on_the_confirmation() {
                const content = make();
                content.requestDeletion();
                open("Delete 15 items?");
                keyClick(Qt.Key_Escape);
                tryVerify(() => !content.shown.showConfirmation);
                compare(content.shown.isDeleting, false);
                closed("Delete 15 items?");
            }

            function test_the_question_begins_with_cancel_each_time_data() {
                return [
                    { tag: "after one that was cancelled", isConfirmed: false },
                    { tag: "after one that was confirmed", isConfirmed: true }
                ];
            }

            function test_the_question_begins_with_cancel_each_time(data) {
                const content = make();
                content.requestDeletion();
                open("Delete 15 items?");
                find.button(sheet("Delete 15 items?"), "Confirm & Delete").forceActiveFocus(Qt.TabFocusReason);
                keyClick(data.isConfirmed ? Qt.Key_Return : Qt.Key_Escape);
                closed("Delete 15 items?");
                if (data.isConfirmed) {
                    content.finish();
                    open("Cleanup Complete!");
                    content.dismissCompletion();
                    content.finish();
                    content.smartSelect();
                    tryVerify(() => content.shown.hasSelection);
                }
                content.requestDeletion();
                open("Delete 15 items?");
                compare(find.button(sheet("Delete 15 items?"), "Cancel").activeFocus, true);
                content.cancelDeletion();
            }

            function test_the_question_shows_its_first_items_each_time() {
                const content = make({ perCategory: 20 });
                content.requestDeletion();
                open("Delete 100 items?");
                const list = () => find.control(sheet("Delete 100 items?"), Accessible.List, "Selected items");
                const top = list().contentY;
                list().positionViewAtEnd();
                verify(list().contentY > top);
                content.cancelDeletion();
                closed("Delete 100 items?");
                content.requestDeletion();
                open("Delete 100 items?");
                compare(list().contentY, top);
                content.cancelDeletion();
            }

            function test_escape_does_nothing_on_the_progress() {
                const content = confirmed();
                keyClick(Qt.Key_Escape);
                compare(content.shown.isDeleting, true);
                compare(sheet("Deleting files...").activeFocus, true);
                content.finish();
            }

            function test_escape_is_done_on_the_completion() {
                const content = confirmed();
                content.finish();
                open("Cleanup Complete!");
                keyClick(Qt.Key_Escape);
                tryVerify(() => !content.shown.showDeletionComplete);
                compare(content.screen, ContentView.Scanning);
                content.finish();
            }
        }
    }
}
