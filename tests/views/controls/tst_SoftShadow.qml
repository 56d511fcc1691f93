import QtQuick
import QtTest
import Drossbin.Views

TestCase {
    id: test

    name: "SoftShadow"
    when: windowShown
    width: 300
    height: 200
    visible: true

    Rectangle {
        id: panel

        x: 50
        y: 50
        width: 200
        height: 100
        radius: 10
        color: "white"

        SoftShadow {
            corner: panel.radius
        }
    }

    function cleanup() {
        Theme.dark = false;
    }

    /// How dark it is at a place, from 0 to 1.
    function darkness(x: real, y: real): real {
        return 1 - grabImage(test).pixel(x, y).hslLightness;
    }

    function test_fades_from_the_panels_edge_outwards_data() {
        return [{ tag: "light", dark: false }, { tag: "dark", dark: true }];
    }

    function test_fades_from_the_panels_edge_outwards(data) {
        Theme.dark = data.dark;
        waitForRendering(panel, 200);
        const down = [157, 163, 169, 175].map(y => darkness(150, y));
        for (let place = 1; place < down.length; ++place)
            verify(down[place] < down[place - 1], down.join(" "));
        compare(darkness(150, 177), 0, "it ends");
        verify(darkness(150, 152) > darkness(150, 47), "it lies a little below");
        compare(darkness(28, 100), 0);
        verify(darkness(46, 100) > 0);
    }

    function test_lies_below_its_panel() {
        compare(darkness(150, 100), 0);
    }
}
