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

            HeldKey {
                id: held
            }

            Component {
                id: content

                HeldContentView {}
            }

            Component {
                id: session

                Session {
                    width: host.width
                    height: host.height
                    LayoutMirroring.enabled: Theme.mirrored
                    LayoutMirroring.childrenInherit: true
                }
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

            /// A session after a scan, at its overview.
            function make(properties: var): Session {
                const state = createTemporaryObject(content, test, properties ?? {});
                test.made = session.createObject(test, { content: state });
                test.made.forceActiveFocus();
                state.startScan(true);
                tryCompare(state, "screen", ContentView.Category);
                state.selectedCategory = -1;
                tryCompare(state, "screen", ContentView.Overview);
                return test.made;
            }

            function test_the_sidebar_tells_of_the_way_back_only_where_escape_takes_it() {
                const state = make().content;
                const heading = find.label(test.made, "Categories");
                compare(heading.Accessible.description, "");
                state.selectedCategory = 2;
                tryCompare(heading.Accessible, "description", "Escape shows the overview of all categories");
                state.startScan(false);
                tryCompare(state, "screen", ContentView.Scanning);
                compare(state.selectedCategory, 2);
                tryCompare(heading.Accessible, "description", "");
                state.finish();
            }

            function resize(size: var) {
                host.width = size.width;
                host.height = size.height;
                Theme.mirrored = size.mirrored ?? false;
            }

            /// What is read or pressed, but for rows that a list cuts at its edge.
            function things(made: Session): var {
                const roles = [Accessible.StaticText, Accessible.Button, Accessible.CheckBox, Accessible.EditableText];
                const all = find.seen(made).filter(item => roles.includes(item.Accessible.role) && !item.Accessible.ignored);
                return all.filter(item => !isCut(item));
            }

            function isCut(item: Item): bool {
                let view = item.parent;
                while (view && view.contentY === undefined)
                    view = view.parent;
                const place = view ? item.mapToItem(view, 0, 0) : null;
                return view !== null && (place.y < 0 || place.y + item.height > view.height);
            }

            function isIn(item: Item, outer: Item): bool {
                return item !== null && (item === outer || isIn(item.parent, outer));
            }

            function told(item: Item): string {
                return `${item.Accessible.name}: ${area(item)}`;
            }

            function area(item: Item): rect {
                const place = item.mapToItem(null, 0, 0);
                return Qt.rect(place.x, place.y, item.width, item.height);
            }

            function overlap(one: rect, other: rect): bool {
                return Math.min(one.right, other.right) - Math.max(one.left, other.left) > 0.5 && Math.min(one.bottom, other.bottom) - Math.max(one.top, other.top) > 0.5;
            }

            /// That all is inside the window and nothing stands on anything else.
            function verifyPlaces(made: Session, texts: var) {
                waitForRendering(made, 100);
                const all = things(made);
                all.forEach((one, index) => {
                    const place = area(one);
                    verify(place.width >= 0 && place.x >= 0 && place.right <= host.width, told(one));
                    verify(place.y >= 0 && place.bottom <= host.height, told(one));
                    verify(!one.truncated, told(one));
                    const others = all.slice(index + 1).filter(other => !isIn(other, one));
                    others.forEach(other => verify(!overlap(place, area(other)), `${told(one)} on ${told(other)}`));
                });
                for (const text of texts) {
                    const label = all.find(item => item.text === text);
                    verify(label && !label.truncated && label.contentWidth <= label.width + 0.5, text);
                }
            }

            function windows(): var {
                return [
                    { tag: "640 x 400", width: 640, height: 400 },
                    { tag: "700 x 440", width: 700, height: 440 },
                    { tag: "900 x 614", width: 900, height: 614 },
                    { tag: "900 x 650", width: 900, height: 650 },
                    { tag: "1350 x 1300", width: 1350, height: 1300 },
                    { tag: "640 x 400, right to left", width: 640, height: 400, mirrored: true },
                    { tag: "900 x 650, right to left", width: 900, height: 650, mirrored: true }
                ];
            }

            function test_everything_has_its_place_in_any_window_data() {
                return windows();
            }

            function test_everything_has_its_place_in_any_window(data) {
                resize(data);
                const made = make({ perCategory: 22, firstName: "Firefox" });
                verifyPlaces(made, ["110 items found · 110 MB total"]);
                const sidebar = area(find.control(made, Accessible.List, "Categories"));
                compare(sidebar.left > host.width / 2, data.mirrored ?? false);
                made.content.smartSelect();
                tryVerify(() => find.button(made, "Delete 110 MB") !== null);
                verifyPlaces(made, ["Program Caches", "22 items · 22 MB", "Space to Reclaim"]);
                const names = ["Program Caches", "Package Caches", "App Data", "Log Files", "Old Downloads"];
                for (let category = 0; category < names.length; ++category) {
                    made.content.selectedCategory = category;
                    tryVerify(() => made.content.shown.categoryName === names[category]);
                    tryVerify(() => find.button(made, "Delete Selected") !== null);
                    verifyPlaces(made, [names[category], made.content.shown.categorySubtitle, "22 selected · 22 MB", "110 items · 110 MB"]);
                    const list = find.control(made, Accessible.List, "Items");
                    verify(list.height >= list.itemAtIndex(0).height + 4, "a row is in view");
                }
                made.content.startScan(false);
                tryCompare(made.content, "screen", ContentView.Scanning);
                verifyPlaces(made, ["Scanning your Mac..."]);
                made.content.perCategory = 0;
                made.content.finish();
                tryCompare(made.content, "screen", ContentView.Empty);
                verifyPlaces(made, ["Your Mac is clean!"]);
            }

            function filter(made: Session): Item {
                return find.control(made, Accessible.EditableText, "Filter items...");
            }

            function press(made: Item, name: string, key: int) {
                tryVerify(() => find.button(made, name) !== null);
                find.button(made, name).forceActiveFocus(Qt.TabFocusReason);
                held.hold(key);
            }

            function test_a_key_held_down_does_not_press_on_in_the_next_sheet_data() {
                return [{ tag: "Return", key: Qt.Key_Return }, { tag: "Enter", key: Qt.Key_Enter }, { tag: "Space", key: Qt.Key_Space }];
            }

            function test_a_key_held_down_does_not_press_on_in_the_next_sheet(data) {
                const made = make();
                made.content.smartSelect();
                press(made, "Delete 15 MB", data.key);
                const sheets = host.contentItem.parent;
                tryVerify(() => made.content.shown.showConfirmation);
                press(sheets, "Confirm & Delete", data.key);
                tryVerify(() => made.content.shown.isDeleting);
                made.content.finish();
                tryVerify(() => find.button(sheets, "Done")?.activeFocus ?? false);
                held.repeat(data.key);
                compare(made.content.screen, ContentView.Overview);
                compare(made.content.shown.showDeletionComplete, true);
            }

            function test_meter_rolls_between_selections_only() {
                const made = make();
                Theme.animated = true;
                const meter = find.seen(made).find(item => item instanceof StorageMeter);
                tryCompare(meter, "sizeText", "15 MB");
                const number = find.seen(meter).find(item => item instanceof RollingText);
                const isRolling = () => Array.from(number.children[0].children).some(cell => cell.turn < 1);
                made.content.selectedCategory = 1;
                made.content.selectAllInCategory();
                tryCompare(number, "text", "3 MB");
                compare(isRolling(), false);
                made.content.selectedCategory = 2;
                made.content.selectAllInCategory();
                tryCompare(number, "text", "6 MB");
                compare(isRolling(), true);
                made.content.clearSelection();
                tryCompare(number, "text", "15 MB");
                compare(isRolling(), false);
            }

            function test_escape_held_down_leaves_one_thing() {
                const made = make();
                made.content.selectedCategory = 1;
                made.content.searchText = "x";
                tryVerify(() => filter(made) !== null);
                filter(made).forceActiveFocus(Qt.TabFocusReason);
                keyPress(Qt.Key_Escape);
                tryCompare(made.content, "searchText", "");
                held.repeat(Qt.Key_Escape);
                compare(made.content.selectedCategory, 1);
            }

            function test_a_key_held_down_toggles_once() {
                const made = make();
                made.content.selectedCategory = 0;
                tryVerify(() => find.control(made, Accessible.CheckBox, "Program Caches 1") !== null);
                const box = find.control(made, Accessible.CheckBox, "Program Caches 1");
                box.forceActiveFocus(Qt.TabFocusReason);
                held.hold(Qt.Key_Space);
                tryCompare(box, "isSelected", true);
                held.hold(Qt.Key_Return);
                tryCompare(box, "isSelected", false);
            }

            function test_an_arrow_held_down_walks_on() {
                const made = make();
                find.control(made, Accessible.List, "Categories").forceActiveFocus(Qt.TabFocusReason);
                keyPress(Qt.Key_Down);
                tryCompare(made.content, "selectedCategory", 0);
                held.repeat(Qt.Key_Down);
                tryCompare(made.content, "selectedCategory", 1);
                keyRelease(Qt.Key_Down);
            }

            function test_a_space_held_down_types_on() {
                const made = make();
                made.content.selectedCategory = 1;
                tryVerify(() => filter(made) !== null);
                filter(made).forceActiveFocus(Qt.TabFocusReason);
                held.hold(Qt.Key_Space);
                tryCompare(made.content, "searchText", "    ");
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

            function test_the_toolbar_button_starts_a_demo_only_while_option_is_held_data() {
                return [
                    { tag: "no key", keys: Qt.NoModifier, isDemo: false },
                    { tag: "Option", keys: Qt.AltModifier, isDemo: true },
                    { tag: "Option and Shift", keys: Qt.AltModifier | Qt.ShiftModifier, isDemo: true },
                    { tag: "Control and Shift", keys: Qt.ControlModifier | Qt.ShiftModifier, isDemo: false }
                ];
            }

            function test_the_toolbar_button_starts_a_demo_only_while_option_is_held(data) {
                const made = make();
                mouseClick(find.button(made, "Scan"), 9, 9, Qt.LeftButton, data.keys);
                // A demo's steps take no time here; a scan lasts until it is told to finish.
                compare(made.content.screen, data.isDemo ? ContentView.Category : ContentView.Scanning);
                made.content.finish();
            }

            function test_return_twice_on_done_asks_for_nothing_more_data() {
                return [{ tag: "with motion", animated: true }, { tag: "without", animated: false }];
            }

            function test_return_twice_on_done_asks_for_nothing_more(data) {
                Theme.animated = data.animated;
                const made = make();
                made.content.smartSelect();
                press(made, "Delete 15 MB", Qt.Key_Return);
                const sheets = host.contentItem.parent;
                press(sheets, "Confirm & Delete", Qt.Key_Return);
                tryVerify(() => made.content.shown.isDeleting);
                made.content.finish();
                tryVerify(() => find.button(sheets, "Done")?.activeFocus ?? false);
                keyClick(Qt.Key_Return);
                keyClick(Qt.Key_Return);
                compare(made.content.screen, ContentView.Scanning);
                compare(made.content.shown.showConfirmation, false);
                made.content.finish();
            }

            function test_the_meter_sets_what_was_found_and_what_is_selected_against_the_disk() {
                const made = make();
                made.content.selectedCategory = 0;
                made.content.selectAllInCategory();
                const meter = find.seen(made).find(item => item.foundShare !== undefined && item.sizeText !== undefined);
                tryCompare(meter, "foundShare", 15e6 / 1e12);
                tryCompare(meter, "selectedShare", 3e6 / 1e12);
            }

            function row(made: Session, name: string): ItemRowView {
                return find.control(made, Accessible.ListItem, name) as ItemRowView;
            }

            function test_a_filter_leaves_a_current_row_that_tab_reaches_data() {
                return [
                    { tag: "fewer rows", filters: [["2", 1]], current: "Log Files 2" },
                    { tag: "rows again", filters: [["nothing", 0], ["Files", 3]], current: "Log Files 1" }
                ];
            }

            function test_a_filter_leaves_a_current_row_that_tab_reaches(data) {
                const made = make();
                made.content.selectedCategory = 3;
                tryVerify(() => row(made, "Log Files 3") !== null);
                row(made, "Log Files 1").forceActiveFocus(Qt.TabFocusReason);
                keyClick(Qt.Key_End);
                const list = find.control(made, Accessible.List, "Items");
                for (const [text, count] of data.filters) {
                    made.content.searchText = text;
                    tryCompare(list, "count", count);
                }
                waitForRendering(list, 100);
                find.button(made, "Clear filter").forceActiveFocus(Qt.TabFocusReason);
                keyClick(Qt.Key_Tab);
                compare(row(made, data.current).activeFocus, true);
                compare(row(made, data.current).visualFocus, true);
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
