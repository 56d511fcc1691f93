import QtQuick
import Qt.labs.platform as Platform

/// The menus at the top of a Mac's screen. The system adds its own, with Hide and Quit, and takes
/// About into it. (What the window does by a press stays with its buttons: a menu would have to say
/// when each is possible.)
Platform.MenuBar {
    id: bar

    readonly property Platform.MessageDialog about: Platform.MessageDialog {
        title: "About Drossbin"
        text: `Drossbin ${Application.version}`
        informativeText: "Finds caches, logs and old downloads in your home folder, and deletes what you choose."
        buttons: Platform.MessageDialog.Ok
    }

    Platform.Menu {
        title: "Window"

        Platform.MenuItem {
            text: "Minimize"
            shortcut: "Ctrl+M"
            onTriggered: bar.window.showMinimized()
        }

        Platform.MenuItem {
            text: "Close"
            shortcut: StandardKey.Close // qmllint disable unqualified
            onTriggered: bar.window.close()
        }

        Platform.MenuItem {
            text: "About Drossbin"
            role: Platform.MenuItem.AboutRole
            onTriggered: bar.about.open()
        }
    }
}
