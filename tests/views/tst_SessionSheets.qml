import QtQuick
import QtQuick.Templates as T
import QtTest
import Drossbin.App
import Drossbin.Test
import Drossbin.Views

Item {
    T.ApplicationWindow {
        id: host

        width: 900
        height: 650
        visible: true

        TestCase {
            id: test

            property SessionSheets made

            name: "SessionSheets"
            when: host.active
            visible: true
            width: 900
            height: 650

            Finder {
                id: find
            }

            Component {
                id: session

                HeldSession {}
            }

            Component {
                id: sheets

                SessionSheets {}
            }

            function init() {
                failOnWarning(/.?/);
                Theme.animated = false;
            }

            // The screens before their state.
            function cleanup() {
                test.made.destroy();
                tryCompare(test, "made", null);
            }

            /// A session after a scan, with everything in it selected.
            function make(): HeldSession {
                const content = createTemporaryObject(session, test);
                test.made = sheets.createObject(test, { content: content });
                content.startScan(true);
                content.smartSelect();
                tryCompare(content, "hasSelection", true);
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

            function confirmed(): HeldSession {
                const content = make();
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

            function test_no_sheet_is_there_before_it_is_asked_for() {
                make();
                for (const name of ["Delete 15 items?", "Deleting files...", "Cleanup Complete!"])
                    compare(sheet(name), null);
            }

            function test_escape_is_cancel_on_the_confirmation() {
                const content = make();
                content.requestDeletion();
                open("Delete 15 items?");
                keyClick(Qt.Key_Escape);
                tryCompare(content, "showConfirmation", false);
                compare(content.isDeleting, false);
                closed("Delete 15 items?");
            }

            function test_escape_does_nothing_on_the_progress() {
                const content = confirmed();
                keyClick(Qt.Key_Escape);
                compare(content.isDeleting, true);
                compare(sheet("Deleting files...").activeFocus, true);
                content.finish();
            }

            function test_escape_is_done_on_the_completion() {
                const content = confirmed();
                content.finish();
                open("Cleanup Complete!");
                keyClick(Qt.Key_Escape);
                tryCompare(content, "showDeletionComplete", false);
                compare(content.screen, ContentView.Scanning);
                content.finish();
            }
        }
    }
}
