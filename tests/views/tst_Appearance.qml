import QtQuick
import QtTest
import Drossbin.App
import Drossbin.Test
import Drossbin.Views

TestCase {
    id: test

    name: "Appearance"
    when: windowShown
    width: 300
    height: 200
    visible: true

    HeldPalette {
        id: desktop
    }

    Rectangle {
        id: surface

        anchors.fill: parent
        color: Theme.window
    }

    function cleanup() {
        Theme.colorScheme = DesktopSettings.NoPreference;
    }

    // None here assigns Theme.dark: it would no longer follow.
    function test_follows_the_desktop_while_the_program_runs() {
        for (const window of ["#efefef", "#202020", "#efefef"]) {
            desktop.setWindow(window);
            tryCompare(Theme, "dark", window === "#202020");
            waitForRendering(test, 100);
            verify(Qt.colorEqual(grabImage(surface).pixel(150, 100), window === "#202020" ? "#1c1c1f" : "#ffffff"));
        }
    }

    function test_follows_what_the_user_asked_for_and_the_colours_where_that_is_nothing_data() {
        return [
            { tag: "nothing, light", scheme: DesktopSettings.NoPreference, window: "#efefef", dark: false },
            { tag: "nothing, dark", scheme: DesktopSettings.NoPreference, window: "#202020", dark: true },
            { tag: "dark, light", scheme: DesktopSettings.Dark, window: "#efefef", dark: true },
            { tag: "dark, dark", scheme: DesktopSettings.Dark, window: "#202020", dark: true },
            { tag: "light, light", scheme: DesktopSettings.Light, window: "#efefef", dark: false },
            { tag: "light, dark", scheme: DesktopSettings.Light, window: "#202020", dark: false }
        ];
    }

    function test_follows_what_the_user_asked_for_and_the_colours_where_that_is_nothing(data) {
        desktop.setWindow(data.window);
        tryCompare(Theme.palette, "window", data.window);
        Theme.colorScheme = data.scheme;
        compare(Theme.dark, data.dark);
    }
}
