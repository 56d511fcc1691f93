import QtQuick
import QtQuick.Templates as T
import QtTest
import Drossbin.Views

Item {
    T.ApplicationWindow {
        id: host

        width: 640
        height: 400
        visible: true

        TestCase {
            id: test

            name: "Hint"
            when: host.active
            visible: true
            width: 640
            height: 400

            Item {
                id: page

                property int escapes: 0

                anchors.fill: parent
                Keys.onEscapePressed: ++page.escapes

                PillButton {
                    id: button

                    label: "Press"
                    hint: "Says what it does"
                }

                PillButton {
                    id: other

                    x: 300
                    label: "Other"
                }
            }

            function init() {
                failOnWarning(/.?/);
                Theme.animated = false;
                button.hint = "Says what it does";
                button.x = 200;
                button.y = 100;
                other.x = 300;
                other.y = 0;
                page.escapes = 0;
                other.forceActiveFocus();
                mouseMove(test, 600, 390);
                waitForRendering(page, 100);
            }

            function tip(): Tip {
                return Array.from(button.children).find(child => child.isAsked !== undefined).tip;
            }

            function shown(): Tip {
                tryVerify(() => tip()?.opened ?? false, 5000);
                return tip();
            }

            function placeOf(tip: Tip): rect {
                const corner = tip.contentItem.mapToItem(null, -tip.leftPadding, -tip.topPadding);
                return Qt.rect(corner.x, corner.y, tip.width, tip.height);
            }

            function test_comes_where_the_pointer_rests_and_goes_with_it() {
                compare(tip(), null);
                mouseMove(button);
                compare(shown().text, "Says what it does");
                compare(tip().contentItem.textFormat, Text.PlainText);
                mouseMove(test, 600, 390);
                compare(tip(), null);
            }

            function test_waits_half_a_second() {
                mouseMove(button);
                compare(tip().delay, 500);
                compare(tip().opened, false);
            }

            function test_comes_where_the_keyboard_rests_and_goes_with_it() {
                button.forceActiveFocus(Qt.TabFocusReason);
                shown();
                other.forceActiveFocus(Qt.TabFocusReason);
                compare(tip(), null);
            }

            function test_goes_after_a_while_where_the_keyboard_rests_and_comes_again() {
                button.forceActiveFocus(Qt.TabFocusReason);
                compare(shown().timeout, Theme.told);
                tip().timeout = 1;
                tryVerify(() => tip() === null);
                mouseMove(button);
                shown();
                mouseMove(test, 600, 390);
                compare(tip(), null);
                other.forceActiveFocus(Qt.TabFocusReason);
                button.forceActiveFocus(Qt.TabFocusReason);
                shown();
            }

            function test_stays_as_long_as_the_pointer_does() {
                mouseMove(button);
                compare(shown().timeout <= 0, true);
                button.forceActiveFocus(Qt.TabFocusReason);
                compare(tip().timeout <= 0, true);
            }

            /// Has the button come below a pointer that rests, as what is in a sheet does.
            function comeBelow() {
                mouseMove(test, 250, 310);
                button.y = 300;
                tryCompare(button, "hovered", true);
            }

            function test_what_comes_below_the_pointer_tells_nothing_until_that_moves() {
                comeBelow();
                compare(tip(), null);
                mouseMove(test, 251, 310);
                compare(button.hovered, true);
                shown();
            }

            function test_what_comes_below_the_pointer_and_is_pressed_tells_nothing() {
                comeBelow();
                mousePress(test, 250, 310);
                mouseRelease(test, 250, 310);
                mouseMove(test, 251, 310);
                compare(button.hovered, true);
                compare(tip(), null);
            }

            function test_the_focus_that_a_click_brings_asks_for_nothing() {
                button.forceActiveFocus(Qt.MouseFocusReason);
                compare(tip(), null);
            }

            function test_a_touch_asks_for_nothing() {
                const touched = touchEvent(button);
                touched.press(0, button).commit();
                compare(tip(), null);
                touched.release(0, button).commit();
                compare(tip(), null);
            }

            function test_a_press_answers_it_until_it_is_asked_again() {
                mouseMove(button);
                shown();
                mousePress(button);
                compare(tip(), null);
                mouseRelease(button);
                compare(tip(), null);
                mouseMove(test, 600, 390);
                mouseMove(button);
                shown();
            }

            function test_escape_answers_it_and_does_what_it_does_otherwise_data() {
                return [
                    { tag: "keyboard", ask: () => button.forceActiveFocus(Qt.TabFocusReason) },
                    { tag: "pointer", ask: () => mouseMove(button) }
                ];
            }

            function test_escape_answers_it_and_does_what_it_does_otherwise(data) {
                data.ask();
                shown();
                keyClick(Qt.Key_Escape);
                compare(tip(), null);
                compare(page.escapes, 1);
            }

            function test_a_press_goes_to_what_it_covers() {
                other.x = button.x;
                other.y = button.y + button.height + 4;
                mouseMove(button);
                shown();
                mousePress(other, 20, 10);
                compare(other.down, true);
                mouseRelease(other, 20, 10);
            }

            function test_without_a_text_there_is_none() {
                button.hint = "";
                mouseMove(button);
                compare(tip(), null);
            }

            function test_stays_in_the_window_and_off_its_button_data() {
                const rows = [];
                for (const [tag, text] of [["short", "Says what it does"], ["long", "It says what it does, and what else. ".repeat(4)]])
                    for (const x of [0, 200, 540])
                        for (const y of [0, 200, 358])
                            rows.push({ tag: `${tag} at ${x}, ${y}`, text: text, x: x, y: y });
                return rows;
            }

            function test_stays_in_the_window_and_off_its_button(data) {
                button.hint = data.text;
                button.x = data.x;
                button.y = data.y;
                button.forceActiveFocus(Qt.TabFocusReason);
                const place = placeOf(shown());
                verify(place.left >= 8 && place.right <= 632, `${place}`);
                verify(place.top >= 8 && place.bottom <= 392, `${place}`);
                verify(place.bottom <= data.y || place.top >= data.y + button.height, `${place}`);
                verify(place.width <= 320);
                compare(tip().contentItem.truncated, false);
                verify(tip().contentItem.contentHeight <= tip().contentItem.height);
            }

            function test_is_the_buttons_description() {
                compare(button.Accessible.description, "Says what it does");
            }
        }
    }
}
