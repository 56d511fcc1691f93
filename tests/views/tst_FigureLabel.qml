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

    Component {
        id: figure

        FigureLabel {
            // The digits of some fonts are equally wide by themselves; those of this one are not.
            font.family: "Inter"
            font.pixelSize: 60
            color: "black"
        }
    }

    function init() {
        failOnWarning(/.?/);
    }

    function make(text: string): FigureLabel {
        return createTemporaryObject(figure, test, { text: text });
    }

    /// The leftmost and the rightmost column of a picture that hold anything.
    function ink(text: string): var {
        const label = make(text);
        waitForRendering(label);
        const picture = grabImage(label);
        const columns = Array.from({ length: label.width }, (_, x) => x);
        const dark = columns.filter(x => Array.from({ length: label.height }, (_, y) => picture.red(x, y)).some(red => red < 128));
        label.visible = false;
        return { left: dark[0], right: label.width - 1 - dark[dark.length - 1] };
    }

    function test_digits_have_equal_width() {
        const widths = ["000.0 KB", "111.1 KB", "987.4 KB"].map(text => make(text).implicitWidth);
        compare(widths, [widths[0], widths[0], widths[0]]);
    }

    function test_a_narrow_digit_stands_in_the_middle_of_its_place() {
        const zero = ink("0");
        const one = ink("1");
        verify(one.left > zero.left);
        verify(one.right > zero.right);
    }

    function test_is_a_text_to_a_screen_reader() {
        const label = make("8.5 MB");
        compare(label.Accessible.role, Accessible.StaticText);
        compare(label.Accessible.name, "8.5 MB");
    }
}
