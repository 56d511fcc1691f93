import QtQuick
import QtTest
import Drossbin.Test
import Drossbin.Views
import ".."

TestCase {
    id: test

    name: "ScanProgressView"
    when: windowShown
    width: 660
    height: 650
    visible: true

    readonly property string tipText: "Deleting browser caches may remove saved passwords and autofill data. We recommend clearing browser data, specifically, only when needed."

    Finder {
        id: finder
    }

    Component {
        id: progress

        ScanProgressView {
            anchors.fill: parent
            progress: 0.2
            bytesFoundText: "40 GB"
            currentTask: "Scanning program caches..."
        }
    }

    HeldTime {
        id: time
    }

    function init() {
        failOnWarning(/.?/);
        Theme.animated = true;
    }

    function cleanup() {
        time.letGo();
    }

    function make(): ScanProgressView {
        return createTemporaryObject(progress, test);
    }

    function ringOf(view: ScanProgressView): ProgressRing {
        return finder.control(view, Accessible.ProgressBar, "Scanning your Mac...").parent;
    }

    function tipOf(view: ScanProgressView): ScanningTip {
        return finder.seen(view).find(item => item.emphasis !== undefined);
    }

    function test_texts_from_top_to_bottom() {
        const names = finder.labels(make()).map(label => label.Accessible.name);
        compare(names, ["40 GB", "found", "Scanning your Mac...", "Scanning program caches...", test.tipText]);
    }

    function test_ring_follows_the_scan() {
        const view = make();
        const ring = ringOf(view);
        compare(ring.width, 140);
        compare(ring.height, 140);
        compare(ring.lineWidth, 6);
        compare(ring.progress, 0.2);
        view.progress = 0.4;
        compare(ring.progress, 0.4);
    }

    function test_amount_is_bold_in_the_title_size_over_found() {
        const view = make();
        const amount = finder.labels(view)[0];
        const found = finder.label(view, "found");
        compare(amount.font.pixelSize, Theme.title);
        compare(amount.font.weight, Font.Bold);
        compare(found.font.pixelSize, Theme.caption);
        verify(Qt.colorEqual(found.color, Theme.secondary));
        compare(found.parent, amount.parent);
        compare(found.y - amount.y - amount.height, 4);
    }

    function test_amount_stands_in_the_middle_of_the_ring() {
        const view = make();
        const ring = ringOf(view);
        const middle = finder.label(view, "found").parent;
        fuzzyCompare(middle.mapToItem(ring, middle.width / 2, middle.height / 2).x, 70, 0.6);
        fuzzyCompare(middle.mapToItem(ring, middle.width / 2, middle.height / 2).y, 70, 0.6);
    }

    function test_a_long_amount_stays_within_the_ring() {
        const view = make();
        view.bytesFoundText = "9.223.372.036 gigabytes";
        const amount = finder.labels(view)[0];
        tryVerify(() => amount.width * amount.scale <= 116.5);
    }

    function test_task_fades_over_into_the_next() {
        time.hold();
        const view = make();
        const task = finder.labels(view)[3];
        time.pass(350);
        view.currentTask = "Scanning logs...";
        compare(task.Accessible.name, "Scanning logs...");
        const [arriving, leaving] = [task.children[0], task.children[1]];
        compare([arriving.text, leaving.text], ["Scanning logs...", "Scanning program caches..."]);
        time.pass(35);
        fuzzyCompare(arriving.opacity, 0.0197, 1e-3);
        fuzzyCompare(leaving.opacity, 1 - 0.0197, 1e-3);
        time.pass(140);
        fuzzyCompare(arriving.opacity, 0.5, 1e-3);
        time.pass(175);
        compare(arriving.opacity, 1);
        compare(leaving.visible, false);
    }

    function test_amount_rolls_like_a_spring() {
        time.hold();
        const view = make();
        const amount = finder.labels(view)[0];
        verify(amount instanceof RollingText);
        const cells = amount.children[0].children;
        time.pass(1000);
        view.bytesFoundText = "41 GB";
        time.pass(75);
        compare(cells[0].turn, 1);
        fuzzyCompare(cells[1].turn, 0.5174, 1e-3);
        compare([cells[1].leaving, cells[1].shown], ["0", "1"]);
        time.pass(358);
        compare(cells[1].turn, 1);
    }

    function test_tip_is_at_most_440_wide_and_24_above_the_bottom() {
        const view = make();
        const tip = tipOf(view);
        compare(tip.width, 440);
        compare(tip.radius, 10);
        compare(tip.y + tip.height, 626);
        fuzzyCompare(tip.x + tip.width / 2, 330, 0.6);
        view.anchors.fill = null;
        view.width = 400;
        compare(tip.width, 400 - 32);
    }

    function test_tip_is_padded_20_at_the_sides_and_12_above_and_below() {
        const tip = tipOf(make());
        const bulb = finder.symbol(tip, "lightbulb");
        const text = finder.labels(tip)[0];
        compare(bulb.x, 20);
        compare(text.x, bulb.x + bulb.width + 8);
        compare(text.x + text.width, tip.width - 20);
        compare(text.y, 12);
        compare(tip.height, text.height + 24);
    }

    function test_tips_emphasised_words_are_white_and_semibold_data() {
        return [{ tag: "light", dark: false }, { tag: "dark", dark: true }];
    }

    function test_tips_emphasised_words_are_white_and_semibold(data) {
        Theme.dark = data.dark;
        const tip = tipOf(make());
        compare(tip.emphasis, "<span style=\"font-weight: 600; color: #ffffff\">browser</span>");
        compare(finder.labels(tip)[0].text.split(tip.emphasis).length, 3);
        verify(!Qt.colorEqual(finder.labels(tip)[0].color, "#ffffff"));
    }
}
