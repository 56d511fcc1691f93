import QtQuick
import QtTest
import Drossbin.Views
import ".."

TestCase {
    id: test

    name: "PlainLabel"
    when: windowShown
    width: 400
    height: 200
    visible: true

    Names {
        id: names
    }

    Component {
        id: plain

        PlainLabel {}
    }

    Component {
        id: natural

        Text {}
    }

    function init() {
        // Said of a script that the typeface asked for does not have; another one is taken then.
        failOnWarning(/^(?! *OpenType support missing)/);
    }

    function make(properties: var): PlainLabel {
        return createTemporaryObject(plain, test, properties);
    }

    function test_a_line_in_latin_letters_is_as_high_as_its_typeface_data() {
        return ["largeTitle", "title", "title2", "title3", "headline", "body", "caption", "caption2"].map(size => ({ tag: size, pixelSize: Theme[size] }));
    }

    function test_a_line_in_latin_letters_is_as_high_as_its_typeface(data) {
        const label = make({ text: "Drossbin", "font.pixelSize": data.pixelSize });
        const other = createTemporaryObject(natural, test, { text: "Drossbin", "font.pixelSize": data.pixelSize });
        compare(label.implicitHeight, other.implicitHeight);
    }

    function test_lines_are_equally_high_in_all_scripts_data() {
        return names.rows;
    }

    function test_lines_are_equally_high_in_all_scripts(data) {
        compare(make({ text: data.name }).implicitHeight, 17);
        compare(make({ text: `${data.name}\n${data.name}` }).implicitHeight, 2 * 17);
        compare(make({ text: data.name, width: 40, elide: Text.ElideMiddle }).implicitHeight, 17);
    }

    function test_markup_is_shown_as_it_is() {
        const label = make({ text: "<b>x</b>" });
        compare(label.textFormat, Text.PlainText);
        compare(label.Accessible.name, "<b>x</b>");
    }
}
