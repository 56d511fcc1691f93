import QtQuick
import QtQuick.Templates as T
import QtTest
import Drossbin.App
import Drossbin.Test
import Drossbin.Views

/// Where the keyboard is after every change of what is shown, and what each key does there: nothing
/// that is not seen reacts.
Item {
    T.ApplicationWindow {
        id: host

        width: 900
        height: 650
        visible: true

        TestCase {
            id: test

            property Session made
            property bool byPointer: false
            readonly property ContentView state: test.made?.content ?? null

            name: "SessionKeys"
            when: host.active
            visible: true
            width: 900
            height: 650

            Finder {
                id: find
            }

            Component {
                id: content

                HeldContentView {
                    note: "It is made again."
                }
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
                test.byPointer = false;
                test.made = session.createObject(test, { content: createTemporaryObject(content, test) });
                test.made.forceActiveFocus();
                state.startScan(true);
                reaches("Program Caches 1");
            }

            // The screens before their state.
            function cleanup() {
                state.finish();
                test.made.destroy();
                tryCompare(test, "made", null);
            }

            function focused(): string {
                return host.activeFocusItem?.Accessible.name ?? "";
            }

            function reaches(name: string) {
                tryVerify(() => focused() === name, 5000, name);
                verify(host.activeFocusItem.visible && host.activeFocusItem.enabled, name);
            }

            /// All that a key could change.
            function look(): string {
                const sheet = state.shown.showConfirmation ? "asking" : state.shown.isDeleting ? "deleting" : state.shown.showDeletionComplete ? "done" : "";
                const screen = ["landing", "scanning", "empty", "overview", "category"][state.screen];
                return [screen, state.selectedCategory, state.shown.selectionSummary, state.searchText, sheet].join(", ");
            }

            /// Has the control of that name pressed, by the keyboard or by the pointer.
            function press(name: string) {
                tryVerify(() => find.button(host.contentItem.parent, name)?.enabled ?? false, 5000, name);
                const button = find.button(host.contentItem.parent, name);
                if (test.byPointer) {
                    waitForRendering(host.contentItem, 100);
                    mouseClick(button);
                } else {
                    button.forceActiveFocus(Qt.TabFocusReason);
                    keyClick(Qt.Key_Return);
                }
            }

            function goToOverview() {
                keyClick(Qt.Key_Escape);
                reaches("Smart Select");
            }

            /// Has the first row's note opened, by the keyboard or by the pointer.
            function openNote() {
                press("Information");
                tryVerify(() => find.control(host.contentItem.parent, Accessible.Dialog, "Safe to Clear") !== null);
            }

            function goToReport() {
                press("Select All Safe");
                press("Delete Selected");
                reaches("Cancel");
                press("Confirm & Delete");
                reaches("Deleting files...");
                state.finish();
                reaches("Done");
            }

            /// A change of what is shown; the control that then has the keyboard; what is to be seen
            /// then, and what after the keys that do something.
            function changes(): var {
                const list = "category, 0, 0 items · Zero KB, , ";
                const one = "category, 0, 1 items · 1 MB, , ";
                const all = "category, 0, 3 items · 3 MB, , ";
                const overview = "overview, -1, 0 items · Zero KB, , ";
                const chosen = "overview, -1, 15 items · 15 MB, , ";
                const scanning = "scanning, 0, 0 items · Zero KB, , ";
                return [{
                        tag: "the first scan ends",
                        change: () => {},
                        at: "Program Caches 1", look: list,
                        keys: { Space: one, Return: one, Escape: overview }
                    }, {
                        tag: "a scan begins",
                        change: () => press("Scan"),
                        at: "Scanning your Mac...", look: scanning,
                        keys: {}
                    }, {
                        tag: "a scan begins on the overview",
                        change: () => {
                            goToOverview();
                            press("Scan");
                        },
                        at: "Scanning your Mac...", look: "scanning, -1, 0 items · Zero KB, , ",
                        keys: {}
                    }, {
                        tag: "a scan ends",
                        change: () => {
                            press("Scan");
                            reaches("Scanning your Mac...");
                            state.finish();
                        },
                        at: "Program Caches 1", look: list,
                        keys: { Space: one, Return: one, Escape: overview }
                    }, {
                        tag: "a scan finds nothing",
                        change: () => {
                            state.perCategory = 0;
                            press("Scan");
                            reaches("Scanning your Mac...");
                            state.finish();
                        },
                        at: "Scan Again", look: "empty, 0, 0 items · Zero KB, , ",
                        keys: { Space: scanning, Return: scanning }
                    }, {
                        tag: "a scan begins after one that found nothing",
                        change: () => {
                            state.perCategory = 0;
                            press("Scan");
                            reaches("Scanning your Mac...");
                            state.finish();
                            press("Scan Again");
                        },
                        at: "Scanning your Mac...", look: scanning,
                        keys: {}
                    }, {
                        tag: "Escape in the filter leaves the list",
                        change: () => {
                            keySequence(StandardKey.Find);
                            keyClick(Qt.Key_Escape);
                        },
                        at: "Smart Select", look: overview,
                        keys: { Space: chosen, Return: chosen }
                    }, {
                        tag: "Escape in the sidebar leaves the list",
                        change: () => {
                            find.control(test.made, Accessible.List, "Categories").forceActiveFocus(Qt.TabFocusReason);
                            keyClick(Qt.Key_Escape);
                            tryCompare(state, "screen", ContentView.Overview);
                        },
                        at: "Program Caches", look: overview,
                        keys: { Space: list, Return: list }
                    }, {
                        tag: "an arrow in the sidebar opens a list",
                        change: () => {
                            goToOverview();
                            find.control(test.made, Accessible.List, "Categories").forceActiveFocus(Qt.TabFocusReason);
                            keyClick(Qt.Key_Down);
                            tryCompare(state, "screen", ContentView.Category);
                        },
                        at: "Program Caches", look: list,
                        keys: { Escape: overview }
                    }, {
                        tag: "a card opens a list",
                        change: () => {
                            goToOverview();
                            press("Log Files");
                        },
                        at: "Log Files 1", look: "category, 3, 0 items · Zero KB, , ",
                        keys: { Space: "category, 3, 1 items · 1 MB, , ", Return: "category, 3, 1 items · 1 MB, , ", Escape: overview }
                    }, {
                        tag: "a card opens a list that the filter leaves empty",
                        change: () => {
                            state.searchText = "2";
                            goToOverview();
                            state.searchText = "none";
                            press("Log Files");
                        },
                        at: "Filter items...", look: "category, 3, 0 items · Zero KB, none, ",
                        keys: {
                            X: "category, 3, 0 items · Zero KB, nonex, ",
                            Space: "category, 3, 0 items · Zero KB, none , ",
                            Escape: "category, 3, 0 items · Zero KB, , "
                        }
                    }, {
                        tag: "the selection bar appears",
                        change: () => press("Select All Safe"),
                        at: "Select All Safe", look: all,
                        keys: { Escape: "overview, -1, 3 items · 3 MB, , " }
                    }, {
                        tag: "the selection bar vanishes",
                        change: () => {
                            press("Select All Safe");
                            press("Clear Selection");
                        },
                        at: "Program Caches 1", look: list,
                        keys: { Space: one, Return: one, Escape: overview }
                    }, {
                        tag: "the filter's clear button vanishes",
                        change: () => {
                            state.searchText = "2";
                            press("Clear filter");
                        },
                        at: "Filter items...", look: list,
                        keys: { X: "category, 0, 0 items · Zero KB, x, ", Space: "category, 0, 0 items · Zero KB,  , ", Escape: overview }
                    }, {
                        tag: "the overview's delete button appears",
                        change: () => {
                            goToOverview();
                            press("Smart Select");
                        },
                        at: "Smart Select", look: chosen,
                        keys: {}
                    }, {
                        tag: "the overview's delete button vanishes",
                        change: () => {
                            goToOverview();
                            press("Smart Select");
                            tryVerify(() => find.button(test.made, "Delete 15 MB") !== null);
                            find.button(test.made, "Delete 15 MB").forceActiveFocus(Qt.TabFocusReason);
                            state.clearSelection();
                        },
                        at: "Smart Select", look: overview,
                        keys: { Space: chosen, Return: chosen }
                    }, {
                        tag: "the question comes",
                        change: () => {
                            press("Select All Safe");
                            press("Delete Selected");
                        },
                        at: "Cancel", look: all + "asking",
                        keys: { Space: all, Return: all, Escape: all }
                    }, {
                        tag: "the question comes on the overview",
                        change: () => {
                            goToOverview();
                            press("Smart Select");
                            press("Delete 15 MB");
                        },
                        at: "Cancel", look: chosen + "asking",
                        keys: { Space: chosen, Return: chosen, Escape: chosen }
                    }, {
                        tag: "the question is answered with no",
                        change: () => {
                            press("Select All Safe");
                            press("Delete Selected");
                            press("Cancel");
                        },
                        at: "Delete Selected", look: all,
                        keys: { Space: all + "asking", Return: all + "asking", Escape: "overview, -1, 3 items · 3 MB, , " }
                    }, {
                        tag: "the question is answered with no on the overview",
                        change: () => {
                            goToOverview();
                            press("Smart Select");
                            press("Delete 15 MB");
                            press("Cancel");
                        },
                        at: "Delete 15 MB", look: chosen,
                        keys: { Space: chosen + "asking", Return: chosen + "asking" }
                    }, {
                        tag: "the deletion begins",
                        change: () => {
                            press("Select All Safe");
                            press("Delete Selected");
                            press("Confirm & Delete");
                        },
                        at: "Deleting files...", look: all + "deleting",
                        keys: {}
                    }, {
                        tag: "the deletion ends",
                        change: goToReport,
                        at: "Done", look: all + "done",
                        keys: { Space: scanning, Return: scanning, Escape: scanning }
                    }, {
                        tag: "the report is dismissed",
                        change: () => {
                            goToReport();
                            press("Done");
                        },
                        at: "Scanning your Mac...", look: scanning,
                        keys: {}
                    }, {
                        tag: "the scan after a deletion ends",
                        change: () => {
                            goToReport();
                            press("Done");
                            state.finish();
                        },
                        at: "Program Caches 1", look: list,
                        keys: { Space: one, Return: one, Escape: overview }
                    }];
            }

            function test_keys_reach_only_what_is_seen_data() {
                const rows = [];
                for (const row of changes())
                    for (const key of ["X", "Space", "Return", "Tab", "Backtab", "Escape"])
                        rows.push(Object.assign({}, row, { tag: `${row.tag}, ${key}`, key: key }));
                return rows;
            }

            function test_keys_reach_only_what_is_seen(data) {
                data.change();
                reaches(data.at);
                tryVerify(() => look() === data.look, 5000, look());
                keyClick(Qt[`Key_${data.key}`]);
                // What it brings about may take some turns.
                tryVerify(() => look() === (data.keys[data.key] ?? data.look), 5000, look());
                wait(0);
                compare(look(), data.keys[data.key] ?? data.look);
                tryVerify(() => host.activeFocusItem.visible && host.activeFocusItem.enabled && focused() !== "", 5000, focused());
            }

            function test_a_second_press_while_the_report_leaves_does_nothing_data() {
                return [{ tag: "Return", key: Qt.Key_Return }, { tag: "Space", key: Qt.Key_Space }, { tag: "Escape", key: Qt.Key_Escape }];
            }

            function test_a_second_press_while_the_report_leaves_does_nothing(data) {
                goToReport();
                Theme.animated = true;
                keyClick(data.key);
                keyClick(data.key);
                keyClick(data.key);
                reaches("Scanning your Mac...");
                keyClick(data.key);
                compare(look(), "scanning, 0, 0 items · Zero KB, , ");
                tryVerify(() => find.control(host.contentItem.parent, Accessible.Dialog, "Cleanup Complete!") === null);
                reaches("Scanning your Mac...");
            }

            /// Whether it is seen that the keyboard is there; a field shows it whoever put it there.
            function isRinged(item: Item): bool {
                return item.visualFocus ?? true;
            }

            function test_a_ring_is_wherever_keys_lead_data() {
                return changes().filter(row => row.tag !== "the first scan ends");
            }

            function test_a_ring_is_wherever_keys_lead(data) {
                data.change();
                reaches(data.at);
                tryVerify(() => isRinged(host.activeFocusItem), 5000, focused());
            }

            function test_no_ring_is_where_the_pointer_leads_data() {
                const tags = ["the selection bar vanishes", "the question comes", "the question is answered with no", "the deletion ends", "the scan after a deletion ends"];
                return changes().filter(row => tags.includes(row.tag));
            }

            function test_no_ring_is_where_the_pointer_leads(data) {
                test.byPointer = true;
                data.change();
                reaches(data.at);
                wait(0);
                compare(isRinged(host.activeFocusItem), false);
            }

            function test_the_note_s_button_has_the_ring_again_after_a_key_data() {
                const rows = [];
                for (const key of ["Return", "Enter", "Space", "Escape"])
                    for (const byPointer of [false, true])
                        rows.push({ tag: `${key} after the ${byPointer ? "pointer" : "keyboard"}`, key: Qt[`Key_${key}`], byPointer: byPointer });
                return rows;
            }

            function test_the_note_s_button_has_the_ring_again_after_a_key(data) {
                test.byPointer = data.byPointer;
                openNote();
                keyClick(data.key);
                reaches("Information");
                compare(isRinged(host.activeFocusItem), true);
            }

            function test_the_note_s_button_has_no_ring_after_the_pointer() {
                openNote();
                mouseClick(host.contentItem, 890, 640);
                reaches("Information");
                compare(isRinged(host.activeFocusItem), false);
            }

            function test_a_scan_leaves_the_keyboard_where_it_was_put() {
                press("Scan");
                reaches("Scanning your Mac...");
                find.control(test.made, Accessible.List, "Categories").forceActiveFocus(Qt.TabFocusReason);
                reaches("Program Caches");
                state.finish();
                tryCompare(state, "screen", ContentView.Category);
                reaches("Program Caches");
            }

            function test_the_filter_typed_in_is_left_alone_by_what_it_hides() {
                keySequence(StandardKey.Find);
                reaches("Filter items...");
                for (const key of [Qt.Key_N, Qt.Key_O, Qt.Key_N, Qt.Key_E])
                    keyClick(key);
                tryCompare(state, "searchText", "none");
                reaches("Filter items...");
            }

            function test_the_keyboard_comes_to_a_row_in_view() {
                state.perCategory = 50;
                press("Scan");
                reaches("Scanning your Mac...");
                state.finish();
                reaches("Program Caches 1");
                keyClick(Qt.Key_Space);
                const list = find.control(host.contentItem.parent, Accessible.List, "Items");
                list.contentY += 1000;
                waitForRendering(host.contentItem, 100);
                press("Clear Selection");
                tryVerify(() => host.activeFocusItem instanceof ItemRowView);
                const row = host.activeFocusItem;
                const top = row.mapToItem(list, 0, 0).y;
                verify(top >= 0 && top + row.height <= list.height, top);
                verify(list.contentY >= 900, list.contentY);
                keyClick(Qt.Key_Space);
                verify(row.isSelected);
            }
        }
    }
}
