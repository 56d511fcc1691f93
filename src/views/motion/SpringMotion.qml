import QtQuick
import Drossbin.Views

/// Moves a number the way the spring moves; at once where nothing is to move.
NumberAnimation {
    duration: Theme.sprung
    easing: Spring.curve
}
