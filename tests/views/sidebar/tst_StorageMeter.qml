import QtQuick
import QtTest
import Drossbin.Test
import Drossbin.Views
import ".."

TestCase {
    id: test

    name: "StorageMeter"
    when: windowShown
    width: 400
    height: 200
    visible: true

    Finder {
        id: find
    }

    Component {
        id: meterComponent

        StorageMeter {
            width: 200
            caption: "Cache Found"
            sizeText: "29.7 GB"
            isReclaiming: false
            foundShare: 0.25
            selectedShare: 0
        }
    }

    HeldTime {
        id: time
    }

    function init() {
        failOnWarning(/.?/);
        Theme.animated = false;
    }

    function cleanup() {
        time.letGo();
    }

    function make(properties: var): StorageMeter {
        return createTemporaryObject(meterComponent, test, properties ?? {});
    }

    function track(meter: StorageMeter): Rectangle {
        return meter.children[1];
    }

    function found(meter: StorageMeter): Item {
        return track(meter).children[0];
    }

    function selected(meter: StorageMeter): Item {
        return track(meter).children[1];
    }

    function number(meter: StorageMeter): RollingText {
        return meter.children[0].children[1];
    }

    function test_with_nothing_selected_it_shows_what_was_found() {
        const meter = make();
        compare(find.texts(meter), ["Cache Found", "29.7 GB"]);
        verify(Qt.colorEqual(number(meter).color, Theme.label));
        compare(selected(meter).visible, false);
    }

    function test_with_a_selection_it_shows_what_comes_back_in_blue() {
        const meter = make({ caption: "Space to Reclaim", sizeText: "1 byte", isReclaiming: true });
        compare(find.texts(meter), ["Space to Reclaim", "1 byte"]);
        verify(Qt.colorEqual(number(meter).color, Theme.blue));
        compare(selected(meter).visible, true);
    }

    /// Whether any character of the number is on its way.
    function isRolling(meter: StorageMeter): bool {
        return Array.from(number(meter).children[0].children).some(cell => cell.turn < 1);
    }

    /// As the session does it: the number changes before what it is.
    function show(meter: StorageMeter, text: string, isReclaiming: bool) {
        meter.sizeText = text;
        meter.isReclaiming = isReclaiming;
    }

    function test_only_space_to_reclaim_rolls() {
        Theme.animated = true;
        const meter = make();
        show(meter, "31.2 GB", false);
        compare(isRolling(meter), false, "what was found");
        show(meter, "1.1 GB", true);
        compare(isRolling(meter), false, "from what was found to what comes back");
        show(meter, "2.3 GB", true);
        compare(isRolling(meter), true, "what comes back");
        show(meter, "31.2 GB", false);
        compare(isRolling(meter), false, "from what comes back to what was found");
    }

    function test_number_is_title_2_bold_under_a_caption() {
        const meter = make();
        compare(number(meter).font.pixelSize, Theme.title2);
        compare(number(meter).font.weight, Font.Bold);
        const caption = find.label(meter, "Cache Found");
        compare(caption.font.pixelSize, Theme.caption);
        verify(Qt.colorEqual(caption.color, Theme.secondary));
        compare(number(meter).y - caption.height, 2);
        compare(track(meter).y - meter.children[0].height, 8);
    }

    function test_bars_are_their_share_of_the_track() {
        const meter = make({ isReclaiming: true, selectedShare: 0.1 });
        compare(track(meter).width, 200);
        compare(found(meter).width, 50);
        compare(selected(meter).width, 20);
        for (const bar of [track(meter), found(meter).children[0], selected(meter).children[0]])
            compare(bar.radius, 4);
        verify(Qt.colorEqual(track(meter).color, Theme.quaternary));
        verify(Qt.colorEqual(found(meter).color, Theme.tinted(Theme.blue, 0.2)));
        verify(Qt.colorEqual(selected(meter).color, Theme.blue));
    }

    function test_bars_are_never_narrower_than_4() {
        const meter = make({ isReclaiming: true, foundShare: 0.000001, selectedShare: 0.0000001 });
        compare(found(meter).width, 4);
        compare(selected(meter).width, 4);
    }

    function test_narrowest_bars_keep_to_the_round_end_of_the_track_data() {
        return [{ tag: "left to right", mirrored: false, edge: 100 }, { tag: "right to left", mirrored: true, edge: 299 }];
    }

    function test_narrowest_bars_keep_to_the_round_end_of_the_track(data) {
        const meter = make({ x: 100, isReclaiming: true, foundShare: 0, selectedShare: 0 });
        meter.LayoutMirroring.enabled = data.mirrored;
        meter.LayoutMirroring.childrenInherit = true;
        const narrow = startOfTheTrack(meter, data.edge);
        meter.foundShare = meter.selectedShare = 1;
        const full = startOfTheTrack(meter, data.edge);
        for (let column = 0; column < 4; ++column)
            compare(narrow[column], full[column]);
        verify(Qt.colorEqual(full[4][4], Theme.blue));
        verify(!Qt.colorEqual(narrow[4][4], Theme.blue), "4 wide and no more");
    }

    /// The first columns of pixels, from its edge inwards.
    function startOfTheTrack(meter: StorageMeter, edge: int): var {
        waitForRendering(meter, 200);
        const picture = grabImage(test);
        const top = track(meter).mapToItem(test, 0, 0).y;
        const column = x => [0, 1, 2, 3, 4, 5, 6, 7].map(y => picture.pixel(x, top + y));
        return [0, 1, 2, 3, 4].map(step => column(edge + (edge < 200 ? step : -step)));
    }

    function test_more_than_the_disk_is_not_cut_off() {
        compare(found(make({ foundShare: 1.5 })).width, 300);
    }

    function test_bars_of_more_than_the_disk_fill_the_track_and_no_more_data() {
        return [
            { tag: "twice the disk", share: 2, mirrored: false },
            { tag: "as much as can be counted", share: 4e7, mirrored: false },
            { tag: "twice the disk, right to left", share: 2, mirrored: true },
            { tag: "as much as can be counted, right to left", share: 4e7, mirrored: true }
        ];
    }

    function test_bars_of_more_than_the_disk_fill_the_track_and_no_more(data) {
        const meter = make({ x: 100, isReclaiming: true, foundShare: data.share, selectedShare: data.share });
        meter.LayoutMirroring.enabled = data.mirrored;
        meter.LayoutMirroring.childrenInherit = true;
        waitForRendering(meter);
        const picture = grabImage(test);
        const y = track(meter).mapToItem(test, 0, 4).y;
        for (const x of [101, 200, 298])
            verify(Qt.colorEqual(picture.pixel(x, y), Theme.blue), `inside, at ${x}`);
        for (const x of [0, 98, 301, 399])
            verify(Qt.colorEqual(picture.pixel(x, y), "white"), `outside, at ${x}`);
    }

    function test_bars_follow_the_width_at_once() {
        Theme.animated = true;
        const meter = make({ isReclaiming: true, selectedShare: 0.5 });
        meter.width = 400;
        compare(found(meter).width, 100);
        compare(selected(meter).width, 200);
    }

    function test_selected_bar_springs_to_a_new_share() {
        Theme.animated = true;
        const meter = make({ isReclaiming: true, selectedShare: 0.1 });
        time.hold();
        compare(selected(meter).width, 20);
        meter.selectedShare = 0.5;
        compare(selected(meter).width, 20);
        time.pass(75);
        fuzzyCompare(selected(meter).width, 20 + 80 * 0.5174, 0.05);
        time.pass(225);
        fuzzyCompare(selected(meter).width, 20 + 80 * 1.0084, 0.05);
        time.pass(132);
        verify(selected(meter).width !== 100);
        time.pass(1);
        compare(selected(meter).width, 100);
    }

    function test_selected_bar_does_not_move_with_reduced_motion() {
        const meter = make({ isReclaiming: true, selectedShare: 0.1 });
        meter.selectedShare = 0.5;
        compare(selected(meter).width, 100);
    }

    function test_bars_grow_from_the_right_in_right_to_left() {
        const meter = make({ isReclaiming: true, selectedShare: 0.1 });
        meter.LayoutMirroring.enabled = true;
        meter.LayoutMirroring.childrenInherit = true;
        const caption = find.label(meter, "Cache Found");
        compare(caption.mapToItem(meter, caption.width, 0).x, 200);
        compare(number(meter).mapToItem(meter, number(meter).width, 0).x, 200);
        compare(found(meter).x, 150);
        compare(selected(meter).x, 180);
    }
}
