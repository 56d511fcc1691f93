import QtQuick
import QtTest
import Drossbin.Test
import Drossbin.Views
import ".."

TestCase {
    id: test

    name: "ProgressRing"
    when: windowShown
    width: 200
    height: 200
    visible: true

    Finder {
        id: find
    }

    Component {
        id: ring

        ProgressRing {
            name: "Scan progress"
            progress: 0
        }
    }

    HeldTime {
        id: time
    }

    function init() {
        failOnWarning(/.?/);
        Theme.dark = false;
        Theme.animated = false;
    }

    function cleanup() {
        time.letGo();
    }

    function make(progress: real): ProgressRing {
        const made = createTemporaryObject(ring, test, { progress: progress });
        waitForRendering(made);
        return made;
    }

    function glowOf(ring: ProgressRing): ProgressArc {
        return ring.children[1];
    }

    function colorAt(item: Item, x: real, y: real): color {
        return grabImage(item).pixel(x, y);
    }

    function isBlue(color: color): bool {
        return Qt.colorEqual(color, Theme.blue);
    }

    function test_is_140_by_140_with_lines_6_wide() {
        const made = make(0);
        compare(made.width, 140);
        compare(made.height, 140);
        compare(made.lineWidth, 6);
        verify(Qt.colorEqual(colorAt(made, 70, 1), Theme.quaternary));
        verify(Qt.colorEqual(colorAt(made, 70, 5), Theme.quaternary));
        verify(!Qt.colorEqual(colorAt(made, 70, 8), Theme.quaternary));
    }

    function test_progress_0_draws_no_arc() {
        const made = make(0);
        verify(!isBlue(colorAt(made, 70, 3)));
        verify(!isBlue(colorAt(made, 136, 70)));
    }

    function test_a_quarter_goes_from_the_top_clockwise() {
        const made = make(0.25);
        verify(isBlue(colorAt(made, 70, 3)));
        verify(isBlue(colorAt(made, 117, 22)));
        verify(!isBlue(colorAt(made, 22, 22)));
        verify(!isBlue(colorAt(made, 70, 136)));
    }

    function test_ends_are_round() {
        const made = make(0.25);
        verify(isBlue(colorAt(made, 68, 3)));
        verify(isBlue(colorAt(made, 136, 71)));
        verify(!isBlue(colorAt(made, 136, 76)));
    }

    function test_progress_1_closes_the_ring() {
        const made = make(1);
        for (const point of [[70, 3], [136, 70], [70, 136], [3, 70], [22, 22]])
            verify(isBlue(colorAt(made, point[0], point[1])));
    }

    function test_progress_beyond_1_draws_the_closed_ring() {
        verify(isBlue(colorAt(make(1.5), 3, 70)));
    }

    function test_growth_eases_in_and_out_in_300_milliseconds() {
        Theme.animated = true;
        const made = make(0);
        const arc = made.children[0];
        time.hold();
        made.progress = 1;
        time.pass(75);
        fuzzyCompare(arc.progress, 0.129, 1e-3);
        time.pass(75);
        fuzzyCompare(arc.progress, 0.5, 1e-3);
        time.pass(149);
        verify(arc.progress < 1);
        time.pass(1);
        compare(arc.progress, 1);
    }

    function test_a_new_run_starts_empty_at_once() {
        Theme.animated = true;
        const made = make(1);
        made.progress = 0;
        compare(made.children[0].progress, 0);
    }

    function test_glow_comes_and_goes_on_the_track_while_the_progress_stands_still() {
        Theme.animated = true;
        time.hold();
        const made = make(0);
        made.isGlowing = true;
        for (const opacity of [0.2, 0.4, 0.2, 0, 0.2]) {
            time.pass(500);
            fuzzyCompare(glowOf(made).opacity, opacity, 1e-3);
            compare(made.children[0].progress, 0);
        }
        made.visible = false;
        compare(glowOf(made).opacity, 0);
    }

    function test_a_ring_that_does_not_glow_moves_nothing() {
        Theme.animated = true;
        time.hold();
        const made = make(0);
        time.pass(500);
        compare(glowOf(made).visible, false);
        compare(glowOf(made).opacity, 0);
    }

    function test_reduced_motion_has_no_glow() {
        time.hold();
        const made = make(0);
        made.isGlowing = true;
        time.pass(500);
        compare(glowOf(made).opacity, 0);
    }

    function test_is_a_progress_bar_with_its_value() {
        const made = make(0.42);
        const bar = find.control(made, Accessible.ProgressBar, "Scan progress");
        compare(bar.value, 0.42);
        compare(bar.width, made.width);
        compare(bar.height, made.height);
        made.progress = 1;
        compare(bar.value, 1);
    }
}
