import QtQuick
import QtTest
import Drossbin.Test
import Drossbin.Views
import ".."

TestCase {
    id: test

    name: "LandingView"
    when: windowShown
    width: 900
    height: 650
    visible: true

    Finder {
        id: finder
    }

    Component {
        id: landing

        LandingView {
            anchors.fill: parent
        }
    }

    Component {
        id: landingWindow

        Window {
            visible: true

            LandingView {
                anchors.fill: parent
            }
        }
    }

    SignalSpy {
        id: scans

        signalName: "scan"
    }

    HeldTime {
        id: time
    }

    function init() {
        failOnWarning(/.?/);
        Theme.animated = true;
        mouseMove(test, 1, 1);
    }

    function cleanup() {
        time.letGo();
    }

    function make(): LandingView {
        const view = createTemporaryObject(landing, test);
        scans.target = view;
        scans.clear();
        return view;
    }

    function emblemOf(view: Item): Emblem {
        return finder.seen(view).find(item => item.isPulsing !== undefined);
    }

    function scanButton(view: LandingView): PillButton {
        return finder.button(view, "Start System Scan");
    }

    function test_texts_from_top_to_bottom() {
        compare(finder.texts(make()), ["Drossbin", "Free up space by clearing hidden caches,\nbrowser data, and creative app leftovers.", "Your Mac hasn't been scanned yet"]);
    }

    function test_emblem_is_a_circle_of_120_with_the_symbol_at_56() {
        const emblem = emblemOf(make());
        compare(emblem.width, 120);
        compare(emblem.height, 120);
        compare(emblem.radius, 60);
        fuzzyCompare(emblem.color.a, 0.08, 0.003);
        const symbol = finder.symbol(emblem, "sparkle.magnifyingglass");
        compare(symbol.size, 56);
        verify(Qt.colorEqual(symbol.color, Theme.blue));
        compare(symbol.mapToItem(emblem, 28, 28), Qt.point(60, 60));
    }

    function test_emblem_pulses_while_it_is_seen() {
        time.hold();
        const view = make();
        tryCompare(emblemOf(view), "isPulsing", true);
        const symbol = finder.symbol(view, "sparkle.magnifyingglass");
        for (const opacity of [0.725, 0.45, 0.725, 1, 0.725]) {
            time.pass(500);
            fuzzyCompare(symbol.opacity, opacity, 1e-3);
        }
    }

    function test_emblem_rests_while_it_is_not_seen() {
        const view = make();
        const emblem = emblemOf(view);
        const symbol = finder.symbol(view, "sparkle.magnifyingglass");
        view.visible = false;
        compare(emblem.isPulsing, false);
        compare(symbol.opacity, 1);
    }

    function test_emblem_rests_while_its_window_is_hidden_or_minimised() {
        const window = createTemporaryObject(landingWindow, test);
        const emblem = emblemOf(window.contentItem);
        const symbol = finder.symbol(emblem, "sparkle.magnifyingglass");
        for (const visibility of [Window.Hidden, Window.Minimized]) {
            window.visibility = Window.Windowed;
            tryCompare(emblem, "isPulsing", true);
            tryVerify(() => symbol.opacity < 1);
            window.visibility = visibility;
            tryCompare(emblem, "isPulsing", false);
            compare(symbol.opacity, 1);
        }
        test.Window.window.requestActivate();
        tryCompare(test.Window.window, "active", true);
    }

    function test_emblem_rests_with_reduced_motion() {
        Theme.animated = false;
        compare(emblemOf(make()).isPulsing, false);
    }

    function test_title_is_bold_in_the_large_title_size() {
        const font = finder.label(make(), "Drossbin").font;
        compare(font.pixelSize, Theme.largeTitle);
        compare(font.weight, Font.Bold);
    }

    function test_everything_is_centred() {
        const view = make();
        for (const item of [emblemOf(view), scanButton(view)].concat(finder.labels(view)))
            fuzzyCompare(item.mapToItem(view, item.width / 2, 0).x, 450, 0.6);
    }

    function test_note_stands_24_above_the_bottom() {
        const view = make();
        const note = finder.label(view, "Your Mac hasn't been scanned yet");
        compare(note.mapToItem(view, 0, note.height).y, 626);
        compare(note.font.pixelSize, Theme.caption);
        verify(Qt.colorEqual(note.color, Theme.tertiary));
    }

    function test_nothing_stands_on_anything_else_in_a_small_window() {
        const view = make();
        view.anchors.fill = null;
        view.width = 640;
        view.height = 400;
        waitForRendering(view, 100);
        const top = item => item.mapToItem(view, 0, 0).y;
        const button = scanButton(view);
        verify(top(emblemOf(view)) >= 0);
        verify(top(button) + button.height <= top(finder.label(view, "Your Mac hasn't been scanned yet")));
    }

    function test_button_adds_its_own_padding_to_the_pills() {
        const button = scanButton(make());
        compare(button.variant, "primary");
        compare(button.symbol, "magnifyingglass");
        compare(button.leftPadding, 56);
        compare(button.rightPadding, 56);
        compare(button.topPadding, 24);
        compare(button.bottomPadding, 24);
        compare(button.width, button.implicitContentWidth + 112);
    }

    function test_button_springs_to_103_percent_under_the_pointer() {
        time.hold();
        const button = scanButton(make());
        const frame = button.parent;
        compare(frame.scale, 1);
        compare(frame.transformOrigin, Item.Center);
        time.pass(0);
        mouseMove(button, button.width / 2, button.height / 2);
        time.pass(75);
        fuzzyCompare(frame.scale, 1 + 0.03 * 0.5174, 1e-4);
        time.pass(225);
        fuzzyCompare(frame.scale, 1 + 0.03 * 1.0084, 1e-4);
        verify(frame.scale > 1.03);
        time.pass(133);
        compare(frame.scale, 1.03);
        mouseMove(test, 1, 1);
        time.pass(433);
        compare(frame.scale, 1);
    }

    function test_a_click_asks_for_a_scan() {
        mouseClick(scanButton(make()));
        compare(scans.count, 1);
    }

    function test_a_click_elsewhere_asks_for_nothing() {
        const view = make();
        mouseClick(view, 450, 60);
        mouseClick(emblemOf(view));
        compare(scans.count, 0);
    }

    function test_the_keyboard_begins_at_the_button_and_tab_shows_it() {
        const view = make();
        view.forceActiveFocus();
        compare(scanButton(view).activeFocus, true);
        compare(scanButton(view).visualFocus, false);
        keyClick(Qt.Key_Tab);
        compare(scanButton(view).visualFocus, true);
        keyClick(Qt.Key_Return);
        compare(scans.count, 1);
    }

    function test_hidden_it_does_not_react() {
        const view = make();
        view.forceActiveFocus();
        view.visible = false;
        keyClick(Qt.Key_Return);
        keyClick(Qt.Key_Space);
        compare(scans.count, 0);
        compare(scanButton(view), null);
        compare(view.enabled, false);
    }

    function test_the_keyboard_reaches_and_presses_the_button() {
        const view = make();
        keyClick(Qt.Key_Tab);
        compare(scanButton(view).visualFocus, true);
        keyClick(Qt.Key_Return);
        keyClick(Qt.Key_Space);
        compare(scans.count, 2);
    }
}
