pragma ComponentBehavior: Bound

import QtQuick

/// A number with its unit whose characters roll upwards, each on its own, when they change.
/// Where it is `tabular`, digits stand in cells of equal width. A text that runs right to left rolls
/// as a whole, because its letters join and its parts are not in the order of its characters; so do
/// digits of other scripts, which are equally wide by themselves.
Item {
    id: rolling

    required property string text
    property bool tabular: true
    /// Whether a change rolls; otherwise it is just there.
    property bool rolls: true
    property font font
    property color color: Theme.label
    readonly property list<string> parts: rolling.split(rolling.text)

    function split(text: string): list<string> {
        return /[\u0590-\u08ff]/.test(text) ? [text] : text.match(/[0-9]|[^0-9]+/g) ?? [];
    }

    implicitWidth: row.implicitWidth
    implicitHeight: Theme.lineHeight(rolling.font.pixelSize)
    Accessible.role: Accessible.StaticText
    Accessible.name: rolling.text

    FontMetrics {
        id: metrics

        font: rolling.font
    }

    Row {
        id: row

        LayoutMirroring.enabled: false

        Repeater {
            // More cells than any amount of bytes has characters; the unused are empty.
            model: 16

            RollingCell {
                required property int index

                text: rolling.parts[index] ?? ""
                font: rolling.font
                color: rolling.color
                rolls: rolling.rolls
                digitWidth: rolling.tabular ? metrics.advanceWidth("0") : 0
            }
        }
    }
}
