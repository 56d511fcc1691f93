import QtQuick
import QtQuick.Templates as T
import Drossbin.App

T.ApplicationWindow {
    id: window

    readonly property bool isLanding: content.screen === ContentView.Landing
    /// What panels and the window's frame may need of the screen.
    readonly property int takenByDesktop: 100

    // By address: what the landing screen does not show is not read at the start. It is made in
    // pieces between the events, and the landing screen stays until it is there.
    function startSession(): void {
        session.setSource("Session.qml", {
            content: content
        });
    }

    width: 900
    height: 650
    // No larger than what the desktop can leave of the screen: some compositors end a program whose
    // window does not get as small as it has to be maximised.
    minimumWidth: Math.min(900, Screen.width - window.takenByDesktop)
    minimumHeight: Math.min(650, Screen.height - window.takenByDesktop)
    visible: true
    title: "Drossbin"
    color: Theme.window
    // Without it the controls take the desktop's font, not the program's.
    font: Application.font
    onSceneGraphInitialized: afterFirstFrame.start()
    onIsLandingChanged: if (!window.isLanding)
        window.startSession()
    onClosing: close => close.accepted = content.requestClose()

    ContentView {
        id: content

        onCloseNow: window.close()
    }

    Timer {
        id: afterFirstFrame

        interval: 0
        onTriggered: content.prepare()
    }

    Binding {
        target: Theme
        property: "animated"
        value: !content.desktop.reducesMotion
    }

    Binding {
        target: Theme
        property: "colorScheme"
        value: content.desktop.colorScheme
    }

    Binding {
        target: Theme
        property: "increasedContrast"
        value: content.desktop.increasesContrast
    }

    Shortcut {
        sequences: [StandardKey.Close, StandardKey.Quit] // qmllint disable unqualified
        context: Qt.ApplicationShortcut
        onActivated: window.close()
    }

    Loader {
        active: Qt.platform.os === "osx"
        source: "MacMenuBar.qml"
    }

    Item {
        anchors.fill: parent
        LayoutMirroring.enabled: Theme.mirrored
        LayoutMirroring.childrenInherit: true

        LandingView {
            anchors.fill: parent
            visible: !session.visible
            focus: true
            onScan: content.startScan(content.optionHeld())
        }

        Loader {
            id: session

            anchors.fill: parent
            asynchronous: true
            visible: session.status === Loader.Ready
            onLoaded: session.forceActiveFocus()
        }
    }
}
