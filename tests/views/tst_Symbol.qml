import QtQuick
import QtTest
import Drossbin.Views

TestCase {
    id: test

    name: "Symbol"
    when: windowShown
    width: 200
    height: 200
    visible: true

    Component {
        id: symbol

        Symbol {
            name: "trash"
            color: "#ff0000"
            size: 40
        }
    }

    Component {
        id: semibold

        // As large beside a symbol of 161 as in a button.
        PlainLabel {
            text: "l"
            color: "black"
            font.pixelSize: 140
            font.weight: Font.DemiBold
            width: 200
        }
    }

    function init() {
        failOnWarning(/.?/);
    }

    function test_every_name_has_an_icon_data() {
        return ["arrow.clockwise", "arrow.down.circle", "checkmark.circle.fill", "circle", "doc.text", "exclamationmark.triangle.fill",
            "info.circle", "lightbulb", "magnifyingglass", "shippingbox", "sparkle.magnifyingglass", "sparkles",
            "square.stack.3d.up", "trash", "wand.and.stars", "xmark.circle.fill", "xmark.octagon.fill"].map(name => ({ tag: name }));
    }

    function test_every_name_has_an_icon(data) {
        const made = createTemporaryObject(symbol, test, { name: data.tag });
        compare(made.status, Image.Ready);
        verify(inkOf(grabImage(made)) > 40);
    }

    function inkOf(image: var): int {
        let ink = 0;
        for (let y = 0; y < 40; ++y)
            for (let x = 0; x < 40; ++x)
                ink += image.red(x, y) > 200 && image.green(x, y) < 60 ? 1 : 0;
        return ink;
    }

    /// How wide the first stroke is that a line through the picture meets.
    function strokeOf(item: Item, y: int): real {
        waitForRendering(item);
        const picture = grabImage(item);
        item.visible = false;
        return Array.from({ length: 40 }, (_, x) => (255 - picture.red(x, y)) / 255).reduce((sum, ink) => sum + ink, 0);
    }

    function test_strokes_are_as_heavy_as_semibold_letters() {
        const letter = strokeOf(createTemporaryObject(semibold, test), 90);
        const stroke = isHeavy => strokeOf(createTemporaryObject(symbol, test, { name: "circle", color: "black", size: 161, isHeavy: isHeavy }), 80);
        fuzzyCompare(stroke(true), letter, 0.3);
        fuzzyCompare(stroke(false), 161 / 16, 0.3);
    }

    function test_emblems_strokes_are_as_thin_as_light_letters_are() {
        const sign = createTemporaryObject(symbol, test, { name: "sparkle.magnifyingglass", color: "black", size: 160 });
        fuzzyCompare(strokeOf(sign, 65), 0.75 * 160 / 16, 0.3);
    }

    function test_an_unknown_name_has_none() {
        ignoreWarning(/.*Failed to get image from provider: image:\/\/symbols\/unknown\/ffff0000/);
        const made = createTemporaryObject(symbol, test, { name: "unknown" });
        compare(made.status, Image.Error);
    }

    function test_no_name_shows_nothing() {
        const made = createTemporaryObject(symbol, test, { name: "" });
        compare(made.status, Image.Null);
    }

    function test_is_as_large_as_asked_for() {
        const made = createTemporaryObject(symbol, test, { size: 56 });
        compare(made.width, 56);
        compare(made.height, 56);
        compare(made.implicitWidth, 56);
    }

    function test_colour_keeps_its_opacity() {
        const made = createTemporaryObject(symbol, test, { name: "circle", color: "#80ff0000" });
        compare(made.source.toString(), "image://symbols/circle/80ff0000");
    }
}
