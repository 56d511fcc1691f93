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

    Item {
        id: stage

        width: 120
        height: 120
    }

    Component {
        id: symbol

        Symbol {
            name: "trash"
            color: "#ff0000"
            size: 40
        }
    }

    function init() {
        failOnWarning(/.?/);
    }

    function make(properties: var): Symbol {
        const made = createTemporaryObject(symbol, stage, properties);
        waitForRendering(test, 100);
        return made;
    }

    function strongest(): int {
        return Math.max(...ink().map(row => Math.max(...row)));
    }

    /// How much of each pixel of the screen the symbol fills (0 to 255), a row of them a line, without
    /// the empty ones around it.
    function ink(): var {
        const picture = grabImage(stage);
        let rows = [];
        for (let y = 0; y < picture.height; ++y) {
            const row = [];
            for (let x = 0; x < picture.width; ++x)
                row.push(255 - picture.green(x, y));
            rows.push(row);
        }
        rows = rows.filter(row => row.some(part => part > 0));
        const filled = column => rows.some(row => row[column] > 0);
        return rows.map(row => row.filter((part, column) => filled(column)));
    }

    function test_every_name_has_an_icon_data() {
        return ["arrow.clockwise", "arrow.down.circle", "checkmark.circle.fill", "circle", "doc.text", "exclamationmark.triangle.fill",
            "info.circle", "lightbulb", "magnifyingglass", "shippingbox", "sparkle.magnifyingglass", "sparkles",
            "square.stack.3d.up", "trash", "wand.and.stars", "xmark.circle.fill", "xmark.octagon.fill"].map(name => ({ tag: name }));
    }

    function test_every_name_has_an_icon(data) {
        make({ name: data.tag });
        verify(ink().reduce((sum, row) => sum + row.filter(part => part > 200).length, 0) > 40);
    }

    function test_an_unknown_name_has_none() {
        ignoreWarning(/There is no symbol named unknown/);
        make({ name: "unknown" });
        compare(ink(), []);
    }

    function test_no_name_shows_nothing() {
        const made = make({ name: "" });
        compare(ink(), []);
        made.name = "circle";
        tryVerify(() => ink().length > 0);
        made.name = "";
        tryVerify(() => ink().length === 0);
    }

    // One that is made in pieces is drawn before it has its size.
    function test_shows_nothing_while_it_has_no_size() {
        make({ size: 0 });
        compare(ink(), []);
    }

    function test_one_that_is_made_while_hidden_is_there_when_shown() {
        const box = createTemporaryQmlObject("import QtQuick; Item { visible: false }", stage);
        createTemporaryObject(symbol, box, {});
        waitForRendering(test, 100);
        box.visible = true;
        tryVerify(() => ink().length > 0);
    }

    function test_is_as_large_as_asked_for() {
        const made = make({ size: 56 });
        compare(Qt.size(made.width, made.height), Qt.size(56, 56));
    }

    function test_colour_keeps_its_opacity() {
        make({ name: "checkmark.circle.fill", color: "#80ff0000" });
        compare(strongest(), 128);
    }

    function test_lies_on_whole_pixels_wherever_it_is_data() {
        return [
            { tag: "half a pixel lower", x: 20, y: 20.5 },
            { tag: "at a third to the right", x: 20.333, y: 20 },
            { tag: "anywhere", x: 21.71, y: 23.29 }
        ];
    }

    function test_lies_on_whole_pixels_wherever_it_is(data) {
        const made = make({ size: 16, x: 20, y: 20 });
        const sharp = ink();
        made.x = data.x;
        made.y = data.y;
        waitForRendering(test, 100);
        compare(ink(), sharp);
    }

    function test_lies_on_whole_pixels_also_when_an_ancestor_moves() {
        const box = createTemporaryQmlObject("import QtQuick; Item { x: 20; y: 20 }", stage);
        createTemporaryObject(symbol, box, { size: 16 });
        waitForRendering(test, 100);
        const sharp = ink();
        box.y = 20.4;
        waitForRendering(test, 100);
        compare(ink(), sharp);
    }

    /// How wide the first stroke is, in pixels, that a line through a symbol of this size meets.
    function strokeOf(properties: var, line: real): real {
        const ratio = Screen.devicePixelRatio;
        createTemporaryObject(symbol, stage, properties).y = 10 - Math.round(line * properties.size);
        const picture = grabImage(stage);
        const row = Array.from({ length: 40 * ratio }, (_, x) => (255 - picture.green(x, 10 * ratio)) / 255);
        return row.reduce((sum, ink) => sum + ink, 0) / ratio;
    }

    function test_strokes_are_as_heavy_as_the_letters_data() {
        return [
            { tag: "regular", name: "circle", isHeavy: false, line: 0.5, width: 1 / 16 },
            { tag: "semibold", name: "circle", isHeavy: true, line: 0.5, width: 1.9 / 16.9 },
            { tag: "the emblem's, as light letters", name: "sparkle.magnifyingglass", isHeavy: false, line: 0.41, width: 0.75 / 16 }
        ];
    }

    function test_strokes_are_as_heavy_as_the_letters(data) {
        fuzzyCompare(strokeOf({ name: data.name, isHeavy: data.isHeavy, size: 160 }, data.line), data.width * 160, 0.3);
    }

    function test_strokes_are_wider_when_heavy_data() {
        return ["trash", "shippingbox"].map(name => ({ tag: name }));
    }

    function test_strokes_are_wider_when_heavy(data) {
        const sum = () => ink().reduce((sum, row) => sum + row.reduce((sum, part) => sum + part, 0), 0);
        const made = make({ name: data.tag, size: 16 });
        const regular = sum();
        made.isHeavy = true;
        verify(sum() > 1.3 * regular, sum() / regular);
    }

    function test_lines_of_the_bin_fill_whole_pixels_data() {
        return [{ tag: "16", size: 16, isHeavy: false }, { tag: "18", size: 18, isHeavy: false }, { tag: "heavy, 16", size: 16, isHeavy: true }];
    }

    function test_lines_of_the_bin_fill_whole_pixels(data) {
        if (Screen.devicePixelRatio % 1)
            skip("its lines have whole pixels only at a whole scale");
        make({ size: data.size, isHeavy: data.isHeavy });
        const rows = ink();
        compare(rows.length, 16 * Screen.devicePixelRatio);
        compare(rows[rows.length / 2 + 1].filter(part => part !== 0 && part !== 255), []);
    }
}
