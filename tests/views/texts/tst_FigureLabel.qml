import QtQuick
import QtTest
import Drossbin.Views

TestCase {
    id: test

    name: "FigureLabel"
    when: windowShown
    width: 400
    height: 100
    visible: true

    Rectangle {
        id: surface

        anchors.fill: parent
        color: Theme.window
    }

    Component {
        id: figure

        FigureLabel {}
    }

    Component {
        id: plain

        PlainLabel {}
    }

    function init() {
        failOnWarning(/.?/);
    }

    function cleanup() {
        Theme.dark = false;
    }

    function make(figures: string): FigureLabel {
        return createTemporaryObject(figure, surface, { figures: figures, "font.pixelSize": 60 });
    }

    /// For each column of what is drawn, how much of it differs from the surface.
    function columns(label: Item): var {
        waitForRendering(label);
        const picture = grabImage(surface);
        label.visible = false;
        const ink = (x, y) => Math.abs(picture.red(x, y) - picture.red(399, 99)) / 255;
        const rows = Array.from({ length: label.height }, (_, y) => y);
        return Array.from({ length: label.width + 1 }, (_, x) => rows.reduce((sum, y) => sum + ink(x, y), 0));
    }

    function edges(figures: string): var {
        const ink = columns(make(figures));
        const drawn = ink.map((sum, x) => sum > 1 ? x : -1).filter(x => x >= 0);
        return { left: drawn[0], right: ink.length - 1 - drawn[drawn.length - 1] };
    }

    function test_digits_have_equal_width() {
        const widths = ["000.0 KB", "111.1 KB", "987.4 KB"].map(figures => make(figures).implicitWidth);
        fuzzyCompare(widths[1], widths[0], 0.3);
        fuzzyCompare(widths[2], widths[0], 0.3);
    }

    function test_a_narrow_digit_stands_in_the_middle_of_its_place() {
        const zero = edges("0");
        const one = edges("1");
        verify(one.left > zero.left + 3, `${one.left} ${zero.left}`);
        verify(one.right > zero.right + 3, `${one.right} ${zero.right}`);
    }

    function test_is_as_high_as_a_line() {
        compare(make("0").height, Theme.lineHeight(60));
    }

    function test_has_as_much_ink_as_the_text_beside_it_data() {
        return [{ tag: "light", dark: false }, { tag: "dark", dark: true }];
    }

    function test_has_as_much_ink_as_the_text_beside_it(data) {
        Theme.dark = data.dark;
        const ink = (component, properties) => columns(createTemporaryObject(component, surface, properties)).reduce((sum, one) => sum + one, 0);
        const figures = "9876543210 GB";
        fuzzyCompare(ink(figure, { figures: figures }) / ink(plain, { text: figures }), 1, 0.02);
    }

    function test_is_a_text_to_a_screen_reader() {
        const label = make("8.5 MB");
        compare(label.Accessible.role, Accessible.StaticText);
        compare(label.Accessible.name, "8.5 MB");
    }
}
