import QtQuick
import QtQuick.Templates as T
import QtTest
import Drossbin.Views

Item {
    T.ApplicationWindow {
        id: host

        width: 900
        height: 650
        visible: true

        TestCase {
            id: test

            name: "Sheet"
            when: host.active
            visible: true
            width: 900
            height: 650

            Item {
                id: page

                property int clicks: 0

                anchors.fill: parent

                PillButton {
                    id: below

                    label: "Below"
                    onClicked: ++page.clicks
                }

                Sheet {
                    id: sheet

                    property int escapes: 0

                    shown: false
                    name: "Delete 3 items?"
                    description: "3 GB"
                    onEscaped: ++sheet.escapes

                    Column {
                        PlainLabel {
                            id: heading

                            width: 200
                            text: "Heading"
                            horizontalAlignment: Text.AlignLeft
                        }

                        PillButton {
                            id: first

                            label: "Cancel"
                            focus: true
                        }

                        PillButton {
                            id: second

                            label: "Delete"
                        }
                    }
                }
            }

            function init() {
                failOnWarning(/.?/);
                Theme.animated = false;
                page.clicks = 0;
                sheet.escapes = 0;
                below.forceActiveFocus(Qt.TabFocusReason);
            }

            function cleanup() {
                sheet.shown = false;
                tryCompare(sheet, "visible", false);
                Theme.mirrored = false;
            }

            function open() {
                sheet.shown = true;
                tryCompare(sheet, "opened", true);
            }

            /// Where its upper edge is seen.
            function upperEdge(): real {
                return sheet.background.mapToItem(sheet.parent, 0, 0).y;
            }

            function test_stands_in_the_middle_of_the_window() {
                open();
                const window = sheet.parent;
                compare(sheet.x, Math.round((window.width - sheet.width) / 2));
                compare(sheet.y, Math.round((window.height - sheet.height) / 2));
            }

            function test_lies_on_a_soft_shadow() {
                open();
                waitForRendering(page);
                const picture = grabImage(page);
                const edge = sheet.y + sheet.height;
                const darkness = distance => 1 - picture.pixel(450, edge + distance).r;
                verify(darkness(2) > 0.05, darkness(2));
                verify(darkness(12) > 0 && darkness(12) < darkness(2), darkness(12));
                compare(darkness(Theme.shadowSpread + Theme.shadowDrop + 2), 0);
            }

            function test_comes_down_and_leaves_again() {
                Theme.animated = true;
                let highest = 0;
                let palest = 1;
                const watch = () => {
                    highest = Math.min(highest, upperEdge());
                    palest = Math.min(palest, sheet.opacity);
                };
                sheet.riseChanged.connect(watch);
                sheet.opacityChanged.connect(watch);
                sheet.shown = true;
                tryCompare(sheet, "opened", true);
                compare(highest, -sheet.height, "from above the window's edge");
                compare(upperEdge(), Math.round((sheet.parent.height - sheet.height) / 2));
                highest = 0;
                sheet.shown = false;
                verify(sheet.visible);
                tryCompare(sheet, "visible", false);
                compare(highest, -sheet.height, "and back to there");
                compare(sheet.contentItem.mapToItem(sheet.background, 0, 0).y, 0, "as one");
                compare(palest, 1, "never see-through");
                sheet.riseChanged.disconnect(watch);
                sheet.opacityChanged.disconnect(watch);
            }

            function test_stays_in_the_middle_when_it_grows_while_it_comes() {
                Theme.animated = true;
                sheet.shown = true;
                first.verticalPadding = 60;
                tryCompare(sheet, "opened", true);
                tryVerify(() => upperEdge() === Math.round((sheet.parent.height - sheet.height) / 2));
                first.verticalPadding = 10;
            }

            function test_window_below_takes_no_clicks() {
                open();
                mouseClick(test, 40, 20);
                compare(page.clicks, 0);
                verify(sheet.opened);
                cleanup();
                tryCompare(sheet.parent, "visible", false);
                mouseClick(test, 20, 20);
                compare(page.clicks, 1);
            }

            function test_keeps_the_focus_inside() {
                open();
                compare(first.activeFocus, true);
                keyClick(Qt.Key_Tab);
                compare(second.activeFocus, true);
                keyClick(Qt.Key_Tab);
                compare(first.activeFocus, true);
                keyClick(Qt.Key_Backtab);
                compare(second.activeFocus, true);
            }

            function test_has_the_focus_and_gives_it_back_with_a_ring_for_keys_alone_data() {
                return [
                    { tag: "keyboard", press: () => keyClick(Qt.Key_Space), ring: true },
                    { tag: "pointer", press: () => mouseClick(below), ring: false }
                ];
            }

            function test_has_the_focus_and_gives_it_back_with_a_ring_for_keys_alone(data) {
                data.press();
                open();
                compare(below.activeFocus, false);
                compare(first.activeFocus, true);
                compare(first.visualFocus, data.ring);
                cleanup();
                tryCompare(below, "activeFocus", true);
                compare(below.visualFocus, data.ring);
            }

            function test_escape_is_passed_on_and_closes_nothing_by_itself() {
                open();
                keyClick(Qt.Key_Escape);
                compare(sheet.escapes, 1);
                compare(sheet.opened, true);
            }

            function test_escape_without_a_sheet_does_nothing() {
                keyClick(Qt.Key_Escape);
                compare(sheet.escapes, 0);
            }

            function test_is_mirrored_right_to_left_data() {
                return [{ tag: "right to left", mirrored: true, alignment: Text.AlignRight }, { tag: "left to right", mirrored: false, alignment: Text.AlignLeft }];
            }

            function test_is_mirrored_right_to_left(data) {
                Theme.mirrored = data.mirrored;
                open();
                compare(heading.effectiveHorizontalAlignment, data.alignment);
                compare(first.mirrored, data.mirrored);
            }

            function test_is_a_dialog_with_its_name() {
                compare(sheet.contentItem.Accessible.role, Accessible.Dialog);
                compare(sheet.contentItem.Accessible.name, "Delete 3 items?");
                compare(sheet.contentItem.Accessible.description, "3 GB");
                compare(sheet.contentItem.parent.Accessible.ignored, true);
            }
        }
    }
}
