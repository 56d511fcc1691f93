import QtQuick
import QtTest
import Drossbin.Views

TestCase {
    id: test

    name: "ResultsShell"
    when: windowShown
    width: 900
    height: 650
    visible: true

    Finder {
        id: finder
    }

    ResultsShell {
        id: shell

        anchors.fill: parent
        canScan: true

        sidebar: Rectangle {
            id: left

            anchors.fill: parent
        }

        Rectangle {
            id: right

            anchors.fill: parent
        }
    }

    SignalSpy {
        id: scans

        target: shell
        signalName: "scan"
    }

    SignalSpy {
        id: escapes

        target: shell
        signalName: "escaped"
    }

    function init() {
        failOnWarning(/.?/);
        shell.canScan = true;
        scans.clear();
        escapes.clear();
    }

    function test_sidebar_is_240_wide_and_the_detail_takes_the_rest() {
        compare(left.width, 240);
        compare(left.mapToItem(shell, 0, left.height), Qt.point(0, 650));
        compare(right.mapToItem(shell, 0, 0), Qt.point(241, 0));
        compare(right.width, 659);
        compare(right.height, 650);
    }

    function test_scan_is_in_the_middle_of_the_top_line() {
        const button = finder.button(shell, "Scan");
        compare(button.mapToItem(shell, 0, button.height / 2).y, Theme.topLine / 2);
        compare(left.mapToItem(shell, 0, 0).y, Theme.topLine - 20);
    }

    function test_scan_is_asked_for() {
        const button = finder.button(shell, "Scan");
        compare(button.symbol, "arrow.clockwise");
        mouseClick(button);
        compare(scans.count, 1);
    }

    function test_scan_shows_that_it_is_pressed() {
        const button = finder.button(shell, "Scan");
        mousePress(button);
        verify(Qt.colorEqual(button.background.color, Theme.materialPressed));
        mouseRelease(button);
        verify(!Qt.colorEqual(button.background.color, Theme.materialPressed));
    }

    function test_scan_is_disabled_while_a_scan_runs() {
        const button = finder.button(shell, "Scan");
        shell.canScan = false;
        compare(button.enabled, false);
        compare(button.opacity, Theme.unavailable);
        mouseClick(button);
        compare(scans.count, 0);
        shell.canScan = true;
        mouseClick(button);
        compare(scans.count, 1);
    }

    function test_keyboard_presses_scan() {
        const button = finder.button(shell, "Scan");
        button.forceActiveFocus(Qt.TabFocusReason);
        compare(button.visualFocus, true);
        keyClick(Qt.Key_Return);
        keyClick(Qt.Key_Space);
        compare(scans.count, 2);
    }

    function test_escape_is_passed_on() {
        finder.button(shell, "Scan").forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Escape);
        compare(escapes.count, 1);
        keyClick(Qt.Key_A);
        compare(escapes.count, 1);
    }
}
