import QtQuick
import QtTest
import Drossbin.Views
import ".."

TestCase {
    id: test

    name: "RiskPopover"
    when: windowShown
    width: 900
    height: 650
    visible: true

    Finder {
        id: find
    }

    Component {
        id: buttonComponent

        InfoButton {
            x: 600
            y: 300
            riskColor: "orange"
            riskLabel: "Review First"
            riskSymbol: "exclamationmark.triangle.fill"
            note: "May hold <b>sign-ins</b>."
        }
    }

    function init() {
        failOnWarning(/.?/);
        Theme.animated = false;
    }

    function opened(properties: var): InfoButton {
        const button = createTemporaryObject(buttonComponent, test, properties ?? {});
        mouseClick(button);
        compare(button.showInfo, true);
        tryCompare(button.popover, "opened", true);
        waitForRendering(test, 100);
        return button;
    }

    function placeOf(popover: RiskPopover): rect {
        const place = popover.contentItem.mapToItem(null, -popover.leftPadding, -popover.topPadding);
        return Qt.rect(place.x, place.y, popover.width, popover.height);
    }

    function test_starts_closed() {
        compare(createTemporaryObject(buttonComponent, test).showInfo, false);
    }

    function test_shows_the_risk_and_below_it_the_note() {
        const content = opened().popover.contentItem;
        compare(find.texts(content), ["Review First", "May hold <b>sign-ins</b>."]);
        const label = find.label(content, "Review First");
        const note = find.label(content, "May hold <b>sign-ins</b>.");
        const symbol = find.symbol(content, "exclamationmark.triangle.fill");
        verify(Qt.colorEqual(symbol.color, Theme.orange));
        compare(label.font.pixelSize, Theme.headline);
        compare(label.font.weight, Font.DemiBold);
        compare(note.font.pixelSize, Theme.body);
        verify(Qt.colorEqual(note.color, Theme.secondary));
        compare(note.textFormat, Text.PlainText);
        verify(note.mapToItem(content, 0, 0).y >= label.mapToItem(content, 0, 0).y + label.height);
    }

    function test_is_280_wide_and_padded_16() {
        const popover = opened().popover;
        compare(popover.width, 280);
        for (const side of ["leftPadding", "rightPadding", "topPadding", "bottomPadding"])
            compare(popover[side], 16);
        const symbol = find.symbol(popover.contentItem, "exclamationmark.triangle.fill");
        compare(symbol.mapToItem(popover.contentItem, 0, 0).x, 0);
        const note = find.label(popover.contentItem, "May hold <b>sign-ins</b>.");
        compare(note.width, 248);
        compare(popover.height, note.mapToItem(popover.contentItem, 0, 0).y + note.height + 32);
    }

    /// The middle of the button's symbol, in the window.
    function target(button: InfoButton): point {
        return button.mapToItem(null, button.width / 2, button.height / 2);
    }

    function arrowOf(popover: RiskPopover): Item {
        return Array.from(popover.background.children).find(child => child.clip);
    }

    function test_points_at_its_button_data() {
        return [
            { tag: "from below", x: 600, y: 300, isAbove: false },
            { tag: "from above, at the window's end", x: 600, y: 600, isAbove: true },
            { tag: "just from below", x: 600, y: 610 - opened().popover.height, isAbove: false },
            { tag: "just from above", x: 600, y: 611 - opened().popover.height, isAbove: true },
            { tag: "moved into the window", x: 860, y: 300, isAbove: false }
        ];
    }

    function test_points_at_its_button(data) {
        const button = opened({ x: data.x, y: data.y });
        const popover = button.popover;
        compare(popover.isAbove, data.isAbove);
        const arrow = arrowOf(popover);
        const tip = arrow.mapToItem(null, arrow.width / 2, data.isAbove ? arrow.height : 0);
        compare(tip.x, target(button).x);
        compare(Math.abs(tip.y - target(button).y), 12, "next to the symbol and its ring");
        const place = placeOf(popover);
        compare(data.isAbove ? tip.y - place.bottom : place.top - tip.y, 8);
        verify(place.right <= 892);
    }

    function test_is_nearer_to_its_button_than_to_the_next_row_s() {
        const rowPitch = 44;
        const button = opened();
        verify(placeOf(button.popover).top - 8 - target(button).y < rowPitch / 2);
    }

    function test_the_arrow_opens_the_outline() {
        const popover = opened().popover;
        const place = placeOf(popover);
        const picture = grabImage(popover.background.parent.parent);
        verify(Qt.colorEqual(picture.pixel(target(popover.opener).x, place.top), Theme.sheet));
        verify(!Qt.colorEqual(picture.pixel(target(popover.opener).x + 20, place.top), Theme.sheet));
    }

    function test_its_button_is_drawn_as_open() {
        const button = opened();
        verify(Qt.colorEqual(find.symbol(button, "info.circle").color, Theme.blue));
        keyClick(Qt.Key_Escape);
        tryCompare(button, "showInfo", false);
        verify(!Qt.colorEqual(find.symbol(button, "info.circle").color, Theme.blue));
    }

    function test_a_click_on_its_button_closes_it_and_another_opens_it() {
        const button = opened();
        for (const showInfo of [false, true, false]) {
            mousePress(button);
            mouseRelease(button);
            waitForRendering(test, 50);
            compare(button.showInfo, showInfo);
        }
    }

    function test_a_click_on_another_button_closes_it_and_opens_the_other() {
        const button = opened({ y: 400 });
        const other = createTemporaryObject(buttonComponent, test, { y: 300 });
        mousePress(other);
        compare(button.showInfo, false);
        mouseRelease(other);
        compare(other.showInfo, true);
        tryCompare(other.popover, "opened", true);
        compare(button.showInfo, false);
    }

    function test_a_press_of_a_key_closes_it_and_its_release_does_nothing_data() {
        return [{ tag: "Space", key: Qt.Key_Space }, { tag: "Return", key: Qt.Key_Return }, { tag: "Enter", key: Qt.Key_Enter }];
    }

    function test_a_press_of_a_key_closes_it_and_its_release_does_nothing(data) {
        const button = createTemporaryObject(buttonComponent, test);
        button.forceActiveFocus(Qt.TabFocusReason);
        for (const showInfo of [true, false, true, false]) {
            keyPress(data.key);
            keyRelease(data.key);
            waitForRendering(test, 50);
            compare(button.showInfo, showInfo);
            compare(button.activeFocus, !showInfo);
        }
    }

    function test_stays_in_the_window_data() {
        return [
            { tag: "top left", x: 0, y: 0 },
            { tag: "top right", x: 880, y: 0 },
            { tag: "bottom right", x: 880, y: 626 },
            { tag: "middle", x: 450, y: 320 }
        ];
    }

    function test_stays_in_the_window(data) {
        const button = opened({ x: data.x, y: data.y, note: "A long note. ".repeat(30) });
        const place = placeOf(button.popover);
        verify(place.left >= 0 && place.right <= 900 && place.top >= 0 && place.bottom <= 650);
        const covered = place.top < data.y + button.height && place.bottom > data.y;
        compare(covered, false, "the button stays in sight");
    }

    function test_a_click_beside_it_closes_it() {
        const button = opened();
        mouseClick(test, 10, 600);
        tryCompare(button, "showInfo", false);
    }

    function test_a_click_inside_keeps_it() {
        const button = opened();
        mouseClick(button.popover.contentItem);
        compare(button.showInfo, true);
    }

    function test_keys_close_it_data() {
        return [{ tag: "Escape", key: Qt.Key_Escape }, { tag: "Space", key: Qt.Key_Space }, { tag: "Return", key: Qt.Key_Return }];
    }

    function test_keys_close_it(data) {
        const button = opened();
        keyClick(data.key);
        tryCompare(button, "showInfo", false);
        compare(button.activeFocus, true);
    }

    function test_other_keys_keep_it() {
        const button = opened();
        keyClick(Qt.Key_A);
        compare(button.showInfo, true);
    }

    function test_focus_ring_comes_back_to_those_who_came_by_key() {
        const button = createTemporaryObject(buttonComponent, test);
        button.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Return);
        tryCompare(button.popover, "opened", true);
        keyClick(Qt.Key_Escape);
        tryCompare(button, "showInfo", false);
        compare(button.visualFocus, true);
    }

    function test_is_a_dialog_that_reads_the_note() {
        const content = opened().popover.contentItem;
        compare(content.Accessible.role, Accessible.Dialog);
        compare(content.Accessible.name, "Review First");
        compare(content.Accessible.description, "May hold <b>sign-ins</b>.");
        compare(content.parent.Accessible.ignored, true);
    }
}
