import QtQuick
import QtTest
import Drossbin.Views

TestCase {
    id: test

    name: "RollingText"
    when: windowShown
    width: 300
    height: 100
    visible: true

    Component {
        id: rolling

        RollingText {
            text: "12.4 GB"
            font.pixelSize: 22
        }
    }

    function init() {
        failOnWarning(/.?/);
        Theme.animated = true;
    }

    function make(text: string): RollingText {
        return createTemporaryObject(rolling, test, { text: text });
    }

    function cell(item: RollingText, index: int): RollingCell {
        return item.children[0].children[index];
    }

    function test_parts_are_digits_and_what_is_between_data() {
        return [
            { tag: "12.4 GB", parts: ["1", "2", ".", "4", " GB"] },
            { tag: "Zero KB", parts: ["Zero KB"] },
            { tag: "nothing", text: "", parts: [] },
            { tag: "12.4 غ.ب", parts: ["12.4 غ.ب"] }
        ];
    }

    function test_parts_are_digits_and_what_is_between(data) {
        const item = make(data.text ?? data.tag);
        compare(item.parts.length, data.parts.length);
        data.parts.forEach((part, index) => compare(cell(item, index).shown, part));
        compare(cell(item, data.parts.length).width, 0);
    }

    function test_stands_still_when_it_appears() {
        const item = make("7 KB");
        compare(cell(item, 0).turn, 1);
        compare(cell(item, 0).leaving, "");
    }

    function test_only_the_changed_characters_roll() {
        const item = make("12 GB");
        item.text = "13 GB";
        compare(cell(item, 0).turn, 1);
        compare(cell(item, 1).turn, 0);
        compare(cell(item, 1).shown, "3");
        compare(cell(item, 1).leaving, "2");
        compare(cell(item, 2).turn, 1);
        tryCompare(cell(item, 1), "turn", 1);
    }

    function test_new_comes_from_below_and_old_leaves_upwards() {
        const item = make("1");
        item.text = "2";
        const parts = cell(item, 0).children;
        verify(parts[0].y > 0);
        tryVerify(() => parts[1].y < 0 && parts[1].opacity < 1);
        tryCompare(parts[0], "y", 0);
        compare(parts[1].visible, false);
    }

    function test_digits_have_equal_width() {
        compare(make("111").implicitWidth, make("888").implicitWidth);
    }

    function test_digits_are_as_wide_as_they_are_where_nothing_lines_up() {
        const item = make("1 8");
        item.tabular = false;
        for (const index of [0, 2])
            compare(cell(item, index).width, cell(item, index).children[0].implicitWidth);
        verify(make("8").children[0].children[0].digitWidth > 0, "unlike where they line up");
    }

    function test_changes_at_once_where_it_does_not_roll() {
        const item = make("1");
        item.rolls = false;
        item.text = "2";
        compare(cell(item, 0).turn, 1);
        compare(cell(item, 0).shown, "2");
        item.rolls = true;
        compare(cell(item, 0).turn, 1);
    }

    function test_ends_its_roll_when_it_is_told_not_to() {
        const item = make("1");
        item.text = "2";
        compare(cell(item, 0).turn, 0);
        item.rolls = false;
        compare(cell(item, 0).turn, 1);
    }

    function test_does_not_roll_with_reduced_motion() {
        Theme.animated = false;
        const item = make("1");
        item.text = "2";
        compare(cell(item, 0).turn, 1);
        compare(cell(item, 0).shown, "2");
    }

    function test_is_one_text_to_a_screen_reader() {
        const item = make("12.4 GB");
        compare(item.Accessible.role, Accessible.StaticText);
        compare(item.Accessible.name, "12.4 GB");
    }
}
