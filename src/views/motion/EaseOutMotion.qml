import QtQuick

/// Moves a number at full speed at first and gently at last.
NumberAnimation {
    easing.type: Easing.BezierSpline
    easing.bezierCurve: [0, 0, 0.58, 1, 1, 1]
}
