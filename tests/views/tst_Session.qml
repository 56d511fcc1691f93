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

            property Session made

            name: "Session"
            when: host.active
            visible: true
            width: 900
            height: 650

            Finder {
                id: find
            }

            Component {
                id: held

                HeldSession {}
            }

            Component {
                id: session

                Session {
                    anchors.fill: parent
                }
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

            /// A session after a scan, at its overview.
            function make(): Session {
                const content = createTemporaryObject(held, test);
                test.made = session.createObject(test, { content: content });
                test.made.forceActiveFocus();
                content.startScan(true);
                tryCompare(content, "screen", ContentView.Category);
                content.selectedCategory = -1;
                tryCompare(content, "screen", ContentView.Overview);
                return test.made;
            }

            function filter(made: Session): Item {
                return find.control(made, Accessible.EditableText, "Filter items...");
            }

            function test_the_toolbar_button_is_disabled_for_the_whole_of_a_scan() {
                const made = make();
                const button = find.button(made, "Scan");
                compare(button.enabled, true);
                made.content.startScan(false);
                tryCompare(button, "enabled", false);
                compare(made.content.screen, ContentView.Scanning);
                made.content.finish();
                tryCompare(button, "enabled", true);
                compare(made.content.screen, ContentView.Category);
            }

            function test_find_goes_to_the_filter_where_there_is_one() {
                const made = make();
                made.content.selectedCategory = 1;
                tryVerify(() => filter(made) !== null);
                keySequence(StandardKey.Find);
                compare(filter(made).activeFocus, true);
            }

            function test_find_does_nothing_where_there_is_no_filter() {
                const made = make();
                keySequence(StandardKey.Find);
                keyClick(Qt.Key_A);
                compare(made.content.searchText, "");
                compare(made.activeFocus, true);
            }

            function test_find_does_nothing_under_a_sheet() {
                const made = make();
                made.content.selectedCategory = 1;
                tryVerify(() => filter(made) !== null);
                made.content.requestDeletion();
                tryVerify(() => find.control(host.contentItem.parent, Accessible.Dialog, "Delete 0 items?") !== null);
                keySequence(StandardKey.Find);
                compare(filter(made).activeFocus, false);
            }
        }
    }
}
