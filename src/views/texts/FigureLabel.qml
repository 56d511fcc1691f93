import QtQuick

/// A text whose digits are all as wide as the zero, so that sizes under each other line up. (The
/// typeface's own feature for this needs Qt 6.6; digits of other scripts are equally wide.)
Text {
    id: label

    required property string figures

    /// A digit behind a mark without width, with half of what it lacks after each of the two: the one
    /// way to space single characters of a line that is drawn like all others. Figures hold no markup.
    function spaced(digit: string): string {
        const lacks = metrics.advanceWidth("0") - metrics.advanceWidth(digit);
        return `<span style="letter-spacing: ${lacks / 2}px">&#8203;${digit}</span>`;
    }

    text: label.figures.replace(/[0-9]/g, label.spaced)
    textFormat: Text.RichText
    font.pixelSize: Theme.body
    height: Theme.lineHeight(label.font.pixelSize)
    color: Theme.label
    Accessible.role: Accessible.StaticText
    Accessible.name: label.figures

    FontMetrics {
        id: metrics

        font: label.font
    }
}
