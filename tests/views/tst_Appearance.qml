import QtQuick
import QtTest
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

    // None here assigns Theme.dark: it would no longer follow.
    function test_follows_the_desktop_while_the_program_runs() {
        for (const window of ["#efefef", "#202020", "#efefef"]) {
            desktop.setWindow(window);
            tryCompare(Theme, "dark", window === "#202020");
            waitForRendering(test, 100);
            verify(Qt.colorEqual(grabImage(surface).pixel(150, 100), window === "#202020" ? "#1c1c1f" : "#ffffff"));
        }
    }
}
