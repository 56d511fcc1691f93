import QtQuick
import QtTest
import Drossbin.Views
import ".."

TestCase {
    id: test

    name: "DeletionProgressView"
    when: windowShown
    width: 400
    height: 400
    visible: true

    Finder {
        id: find
    }

    Component {
        id: viewComponent

        DeletionProgressView {
            progress: 0.42
            percentText: "42%"
        }
    }

    function init() {
        failOnWarning(/.?/);
        Theme.animated = false;
    }

    function make(properties: var): DeletionProgressView {
        const view = createTemporaryObject(viewComponent, test, properties ?? {});
        waitForRendering(view, 100);
        return view;
    }

    function ring(view: DeletionProgressView): ProgressRing {
        return find.control(view, Accessible.ProgressBar, "Deleting files...").parent;
    }

    function test_shows_the_percentage_in_the_ring_and_below_it_what_happens() {
        const view = make();
        compare(find.texts(view), ["42%", "Deleting files..."]);
        const percent = find.label(view, "42%");
        compare(percent.font.weight, Font.Bold);
        compare(percent.font.pixelSize, Theme.title3);
        const inRing = percent.mapToItem(ring(view), percent.width / 2, percent.height / 2);
        fuzzyCompare(inRing.x, 40, 1);
        fuzzyCompare(inRing.y, 40, 1);
    }

    function test_ring_is_80_by_80_with_lines_of_4() {
        const view = make();
        compare(ring(view).width, 80);
        compare(ring(view).height, 80);
        compare(ring(view).lineWidth, 4);
    }

    function test_ring_glows_for_one_large_item_can_take_minutes() {
        compare(ring(make()).isGlowing, true);
    }

    function test_stands_20_apart_padded_32() {
        const view = make();
        const status = find.label(view, "Deleting files...");
        const top = ring(view).mapToItem(view, 0, 0).y;
        compare(top, 32);
        compare(status.mapToItem(view, 0, 0).y, top + 80 + 20);
        compare(view.height, 32 + 80 + 20 + status.height + 32);
    }

    function test_percentages_are_equally_wide() {
        const ones = find.label(make({ percentText: "11%" }), "11%");
        const eights = find.label(make({ percentText: "88%" }), "88%");
        fuzzyCompare(ones.implicitWidth, eights.implicitWidth, 0.1);
    }

    function test_ring_is_a_progress_bar_with_its_value() {
        const bar = find.control(make({ progress: 0.5 }), Accessible.ProgressBar, "Deleting files...");
        compare(bar.value, 0.5);
    }

    function test_has_nothing_to_press() {
        const view = make();
        compare(find.seen(view).filter(item => item.Accessible.role === Accessible.Button).length, 0);
    }
}
