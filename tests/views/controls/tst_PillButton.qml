import QtQuick
import QtTest
import Drossbin.Test
import Drossbin.Views

TestCase {
    id: test

    name: "PillButton"
    when: windowShown
    width: 400
    height: 300
    visible: true

    Component {
        id: pill

        PillButton {
            x: 100
            y: 100
            label: "Confirm & Delete"
        }
    }

    HeldTime {
        id: time
    }

    SignalSpy {
        id: clicks

        signalName: "clicked"
    }

    function init() {
        failOnWarning(/.?/);
        Theme.dark = false;
        Theme.animated = true;
    }

    function cleanup() {
        time.letGo();
    }

    function make(properties: var): PillButton {
        const button = createTemporaryObject(pill, test, properties ?? {});
        clicks.target = button;
        clicks.clear();
        return button;
    }

    function row(button: PillButton): Row {
        return button.contentItem.children[0];
    }

    function labelOf(button: PillButton): PlainLabel {
        return row(button).children[1];
    }

    function test_shows_the_label_with_its_ampersand() {
        const button = make();
        compare(labelOf(button).text, "Confirm & Delete");
        compare(labelOf(button).textFormat, Text.PlainText);
        compare(button.Accessible.name, "Confirm & Delete");
        compare(button.Accessible.role, Accessible.Button);
    }

    function test_label_is_14_pixels_semibold_data() {
        return [{ tag: "alone", symbol: "" }, { tag: "beside a symbol", symbol: "trash" }];
    }

    function test_label_is_14_pixels_semibold(data) {
        const font = labelOf(make({ symbol: data.symbol })).font;
        compare(font.pixelSize, 14);
        compare(font.weight, Font.DemiBold);
    }

    function test_pads_24_at_the_sides_and_10_above_and_below_data() {
        return test_label_is_14_pixels_semibold_data();
    }

    function test_pads_24_at_the_sides_and_10_above_and_below(data) {
        const button = make({ symbol: data.symbol });
        compare(button.width, row(button).width + 48);
        compare(button.height, row(button).height + 20);
        compare(row(button).mapToItem(button, 0, 0), Qt.point(24, 10));
    }

    function test_is_a_capsule() {
        const button = make();
        compare(button.background.radius, button.height / 2);
        compare(button.background.width, button.width);
    }

    function test_variants_have_their_colours_data() {
        return [
            { tag: "primary", fill: Qt.rgba(0, 0.42, 1, 1), label: "#ffffff" },
            { tag: "secondary", fill: Qt.rgba(1, 1, 1, 0.08), label: Theme.secondary },
            { tag: "danger", fill: Theme.dangerFill, label: "#ffffff" }
        ];
    }

    function test_variants_have_their_colours(data) {
        const button = make({ variant: data.tag });
        verify(Qt.colorEqual(button.background.color, data.fill));
        verify(Qt.colorEqual(labelOf(button).color, data.label));
    }

    function test_changes_its_shade_under_the_pointer_data() {
        return [
            { tag: "primary", over: Theme.strongHovered },
            { tag: "secondary", over: Theme.faintHovered },
            { tag: "danger", over: Theme.strongHovered }
        ];
    }

    function test_changes_its_shade_under_the_pointer(data) {
        const button = make({ variant: data.tag });
        const over = button.background.children[0];
        mouseMove(test, 1, 1);
        compare(over.visible, false);
        mouseMove(button, 10, 10);
        compare(over.visible, true);
        verify(Qt.colorEqual(over.color, data.over));
        mousePress(button);
        compare(over.visible, false);
        mouseRelease(button);
    }

    function test_shrinks_to_95_percent_about_its_centre_in_150_milliseconds_data() {
        return ["primary", "secondary", "danger"].map(variant => ({ tag: variant }));
    }

    function test_shrinks_to_95_percent_about_its_centre_in_150_milliseconds(data) {
        const button = make({ variant: data.tag });
        compare(button.transformOrigin, Item.Center);
        time.hold();
        mousePress(button);
        time.pass(75);
        fuzzyCompare(button.scale, 1 - 0.05 * 0.6848, 1e-5);
        time.pass(75);
        compare(button.scale, 0.95);
        mouseRelease(button);
        time.pass(75);
        fuzzyCompare(button.scale, 0.95 + 0.05 * 0.6848, 1e-5);
        time.pass(75);
        compare(button.scale, 1);
    }

    function test_shrinks_at_once_with_reduced_motion() {
        Theme.animated = false;
        const button = make();
        time.hold();
        mousePress(button);
        time.pass(0);
        compare(button.scale, 0.95);
        mouseRelease(button);
    }

    function test_a_click_presses_it() {
        const button = make();
        mouseClick(button);
        compare(clicks.count, 1);
    }

    function test_a_click_beside_it_does_nothing() {
        const button = make();
        mouseClick(test, 90, 90);
        compare(clicks.count, 0);
    }

    function test_disabled_it_looks_the_same_and_does_nothing_data() {
        return test_variants_have_their_colours_data();
    }

    function test_disabled_it_looks_the_same_and_does_nothing(data) {
        const button = make({ variant: data.tag, enabled: false });
        mouseClick(button);
        compare(clicks.count, 0);
        compare(button.opacity, 1);
        compare(labelOf(button).opacity, 1);
        verify(Qt.colorEqual(button.background.color, data.fill));
        verify(Qt.colorEqual(labelOf(button).color, data.label));
    }

    function test_keys_press_it_data() {
        return [{ tag: "Space", key: Qt.Key_Space }, { tag: "Return", key: Qt.Key_Return }, { tag: "Enter", key: Qt.Key_Enter }];
    }

    function test_keys_press_it(data) {
        make().forceActiveFocus(Qt.TabFocusReason);
        keyClick(data.key);
        compare(clicks.count, 1);
    }

    function test_hidden_it_keeps_no_key_and_cannot_be_pressed() {
        const button = make();
        button.forceActiveFocus(Qt.TabFocusReason);
        button.visible = false;
        compare(button.activeFocus, false);
        keyClick(Qt.Key_Return);
        keyClick(Qt.Key_Space);
        button.press();
        compare(clicks.count, 0);
        button.visible = true;
        compare(button.enabled, true);
    }

    function test_other_keys_do_not_press_it() {
        make().forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_A);
        keyClick(Qt.Key_D, Qt.AltModifier);
        compare(clicks.count, 0);
    }

    function test_focus_ring_shows_for_the_keyboard_only() {
        const button = make();
        const ring = button.background.children[1];
        mouseClick(button);
        compare(ring.visible, false);
        button.focus = false;
        button.forceActiveFocus(Qt.TabFocusReason);
        compare(ring.visible, true);
    }

    function test_symbol_has_the_labels_colour() {
        const button = make({ label: "Delete Selected", symbol: "trash", variant: "danger" });
        const symbol = row(button).children[0];
        compare(symbol.visible, true);
        compare(symbol.name, "trash");
        compare(symbol.size, 16);
        compare(symbol.isHeavy, true);
        verify(Qt.colorEqual(symbol.color, "#ffffff"));
        compare(row(make()).children[0].visible, false);
    }
}
