import QtQuick
import QtTest
import Drossbin.Views

TestCase {
    id: test

    name: "Main"
    when: windowShown
    visible: true

    Finder {
        id: find
    }

    Component {
        id: main

        Main {}
    }

    function init() {
        failOnWarning(/.?/);
    }

    function make(): Main {
        return createTemporaryObject(main, test);
    }

    function isShown(window: Main, button: string): bool {
        return find.button(window.contentItem, button) !== null;
    }

    function test_is_900_by_650_and_no_smaller() {
        const window = make();
        compare([window.width, window.height], [900, 650]);
        compare([window.minimumWidth, window.minimumHeight], [900, 650]);
        verify(window.maximumWidth > 100000 && window.maximumHeight > 100000);
    }

    function test_gets_smaller_where_the_screen_has_no_room_for_it_beside_the_desktop() {
        // The test's platform warns that it knows no least size when that of a shown window changes.
        const window = createTemporaryObject(main, test, {
            visible: false
        });
        window.screen = Array.from(Application.screens).find(screen => screen.name === "small");
        compare([window.minimumWidth, window.minimumHeight], [700, 500]);
    }

    function test_landing_screen_stays_until_the_session_is_made() {
        const window = make();
        tryVerify(() => isShown(window, "Start System Scan"));
        window.startSession();
        verify(isShown(window, "Start System Scan"));
        verify(!isShown(window, "Scan"));
        let sawBoth = false;
        tryVerify(() => {
            sawBoth = sawBoth || isShown(window, "Start System Scan") && isShown(window, "Scan");
            return isShown(window, "Scan");
        });
        verify(!sawBoth);
        verify(!isShown(window, "Start System Scan"));
    }

    function test_session_has_the_keyboard_once_it_is_made() {
        const window = make();
        window.requestActivate();
        tryCompare(window, "active", true);
        find.button(window.contentItem, "Start System Scan").forceActiveFocus(Qt.TabFocusReason);
        window.startSession();
        tryVerify(() => window.activeFocusItem instanceof Session);
    }
}
