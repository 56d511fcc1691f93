import QtQuick

/// A bar of the storage meter, as wide as its amount is beside the disk. It can be wider than the
/// track that it lies in, for what is found may be more than the disk holds; none of that is drawn.
/// One that is too narrow for both of its round ends is the start of a wider one, so that it keeps
/// to the round end of the track.
Item {
    id: bar

    property alias color: fill.color
    property alias radius: fill.radius

    anchors.left: parent.left
    height: parent.height
    clip: bar.width < bar.height

    Rectangle {
        id: fill

        anchors.left: parent.left
        width: Math.max(bar.height, Math.min(bar.width, bar.parent.width))
        height: parent.height
        radius: 4
    }
}
