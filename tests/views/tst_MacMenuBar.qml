import QtQuick
import QtTest
import Qt.labs.platform as Platform

/// The menus of another system: what they hold and do, not how that system shows them.
TestCase {
    id: test

    name: "MacMenuBar"
    when: windowShown
    visible: true

    property Window window: null
    property Platform.MenuBar bar: null

    Component {
        id: windowComponent

        Window {
            width: 200
            height: 100
            visible: true
        }
    }

    function init() {
        failOnWarning(/.?/);
        test.window = createTemporaryObject(windowComponent, test);
        tryCompare(test.window, "visibility", Window.Windowed);
        const component = Qt.createComponent("../../src/views/MacMenuBar.qml");
        compare(component.status, Component.Ready, component.errorString());
        test.bar = createTemporaryObject(component, test, { window: test.window });
    }

    function item(text: string): Platform.MenuItem {
        return Array.from(test.bar.menus[0].items).find(item => item.text === text);
    }

    function test_has_one_menu() {
        compare(Array.from(test.bar.menus).map(menu => menu.title), ["Window"]);
        compare(Array.from(test.bar.menus[0].items).map(item => item.text), ["Minimize", "Close", "About Drossbin"]);
    }

    function test_minimizes_the_window() {
        compare(item("Minimize").shortcut, "Ctrl+M");
        item("Minimize").triggered();
        compare(test.window.visibility, Window.Minimized);
    }

    function test_closes_the_window() {
        compare(item("Close").shortcut, StandardKey.Close);
        item("Close").triggered();
        compare(test.window.visible, false);
    }

    function test_tells_the_program_s_version() {
        compare(item("About Drossbin").role, Platform.MenuItem.AboutRole);
        compare(test.bar.about.text, `Drossbin ${Application.version}`);
    }
}
