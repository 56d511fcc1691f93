import QtQuick

/// Moves a number gently at first and at last.
NumberAnimation {
    easing.type: Easing.BezierSpline
    easing.bezierCurve: [0.42, 0, 0.58, 1, 1, 1]
}
