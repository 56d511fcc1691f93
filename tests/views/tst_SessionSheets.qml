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
