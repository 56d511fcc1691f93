import QtQuick
import QtTest
import Drossbin.Views
import ".."

TestCase {
    id: test

    name: "OverviewView"
    when: windowShown
    width: 660
    height: 650
    visible: true

    Finder {
        id: finder
    }

    ListModel {
        id: model
    }

    Component {
        id: overview

        OverviewView {
            height: 650
            width: 660
            totalSummary: "37 items found · 12.4 GB total"
            hasSelection: false
            deleteLabel: "Delete Zero KB"
            categories: model
        }
    }

    SignalSpy {
        id: spy
    }

    function initTestCase() {
        for (const name of ["Program Caches", "Package Caches", "App Data", "Log Files", "Old Downloads"])
            model.append({ name: name, icon: "trash", subtitle: "About " + name, countText: "3", sizeText: "4 MB", caption: "3 items · 4 MB" });
    }

    function init() {
        failOnWarning(/.?/);
        Theme.animated = true;
    }

    function make(signalName: string): OverviewView {
        const view = createTemporaryObject(overview, test);
        spy.target = view;
        spy.signalName = signalName;
        spy.clear();
        return view;
    }

    function cards(view: OverviewView): var {
        return finder.seen(view).filter(item => item.countText !== undefined && item.subtitle !== undefined);
    }

    function columns(view: OverviewView): int {
        return new Set(cards(view).map(card => card.x)).size;
    }

    function test_header_shows_the_name_and_the_summary() {
        const view = make("smartSelect");
        const title = finder.label(view, "Drossbin");
        compare(title.font.pixelSize, Theme.largeTitle);
        compare(title.font.weight, Font.Bold);
        verify(Qt.colorEqual(finder.label(view, "37 items found · 12.4 GB total").color, Theme.secondary));
    }

    function test_title_and_smart_select_are_in_the_middle_of_the_top_line() {
        const view = make("smartSelect");
        for (const item of [finder.label(view, "Drossbin"), finder.button(view, "Smart Select")])
            verify(Math.abs(item.mapToItem(view, 0, item.height / 2).y - Theme.topLine / 2) <= 0.5, item);
    }

    function test_smart_select_is_asked_for() {
        const button = finder.button(make("smartSelect"), "Smart Select");
        compare(button.symbol, "wand.and.stars");
        compare(button.variant, "primary");
        compare(button.hint, "Select all items marked as safe to delete");
        mouseClick(button);
        compare(spy.count, 1);
    }

    function test_delete_button_exists_only_with_a_selection() {
        const view = make("deletionRequested");
        compare(finder.button(view, "Delete Zero KB"), null);
        view.hasSelection = true;
        view.deleteLabel = "Delete 3.2 GB";
        const button = finder.button(view, "Delete 3.2 GB");
        compare(button.symbol, "trash");
        compare(button.variant, "danger");
        mouseClick(button);
        compare(spy.count, 1);
        view.hasSelection = false;
        compare(finder.button(view, "Delete 3.2 GB"), null);
    }

    function test_buttons_stand_8_apart_at_the_trailing_edge() {
        const view = make("smartSelect");
        view.hasSelection = true;
        const select = finder.button(view, "Smart Select");
        const remove = finder.button(view, "Delete Zero KB");
        waitForRendering(view);
        compare(remove.mapToItem(view, 0, 0).y - select.mapToItem(view, 0, select.height).y, 8);
        compare(select.mapToItem(view, select.width, 0).x, 644);
        compare(remove.mapToItem(view, remove.width, 0).x, 644);
    }

    function test_nothing_moves_when_the_second_button_appears() {
        const view = make("smartSelect");
        const places = () => [finder.label(view, "Drossbin"), finder.button(view, "Smart Select"), cards(view)[0]].map(item => item.mapToItem(view, 0, 0));
        waitForRendering(view);
        const before = places();
        view.hasSelection = true;
        waitForRendering(view);
        compare(places(), before);
    }

    function tip(button: PillButton): Tip {
        return Array.from(button.children).find(child => child.isAsked !== undefined).tip;
    }

    function test_the_delete_button_says_what_it_takes_and_that_it_asks() {
        const view = make("deletionRequested");
        view.hasSelection = true;
        compare(finder.button(view, "Delete Zero KB").Accessible.description, "Deletes the selected items of every category permanently; asks first");
    }

    function test_tooltip_explains_smart_select() {
        const button = finder.button(make("smartSelect"), "Smart Select");
        mouseMove(button, 20, 20);
        tryVerify(() => tip(button)?.opened ?? false, 3000);
        compare(tip(button).text, "Select all items marked as safe to delete");
        mouseMove(test, 1, 400);
        compare(tip(button), null);
    }

    function test_all_five_cards_stand_in_their_order() {
        const names = cards(make("smartSelect")).map(card => card.name);
        compare(names, ["Program Caches", "Package Caches", "App Data", "Log Files", "Old Downloads"]);
    }

    function test_as_many_columns_as_fit_at_200_data() {
        return [
            { tag: "never fewer than one", width: 120, columns: 1 },
            { tag: "one", width: 232, columns: 1 },
            { tag: "just not two", width: 447, columns: 1 },
            { tag: "two", width: 448, columns: 2 },
            { tag: "just not three", width: 663, columns: 2 },
            { tag: "three", width: 664, columns: 3 },
            { tag: "all", width: 2312, columns: 5 }
        ];
    }

    function test_as_many_columns_as_fit_at_200(data) {
        const view = make("smartSelect");
        view.width = data.width;
        waitForRendering(view);
        compare(columns(view), data.columns);
        verify(cards(view).every(card => card.width >= Math.min(200, data.width - 40)));
    }

    function test_cards_stand_16_apart_and_fill_the_width() {
        const view = make("smartSelect");
        waitForRendering(view);
        const all = cards(view);
        compare(all[1].x - all[0].x - all[0].width, 16);
        compare(all[2].y - all[0].y - all[0].height, 16);
        compare(all[1].mapToItem(view, all[1].width, 0).x, 644);
        compare(all[0].mapToItem(view, 0, 0).x, 16);
    }

    function test_a_card_chooses_its_category() {
        const view = make("categoryChosen");
        mouseClick(cards(view)[3]);
        compare(spy.count, 1);
        compare(spy.signalArguments[0][0], 3);
    }

    function test_between_the_cards_nothing_is_chosen() {
        const view = make("categoryChosen");
        waitForRendering(view);
        const card = cards(view)[0];
        mouseClick(view, card.mapToItem(view, card.width + 8, 0).x, card.mapToItem(view, 0, 8).y);
        compare(spy.count, 0);
    }

    function test_the_keyboard_walks_the_cards_and_scrolls_to_them() {
        const view = make("categoryChosen");
        view.height = 260;
        for (let press = 0; press < 6; ++press)
            keyClick(Qt.Key_Tab);
        const last = cards(view)[4];
        compare(last.visualFocus, true);
        tryVerify(() => last.mapToItem(view, 0, last.height).y <= 260);
        keyClick(Qt.Key_Return);
        compare(spy.signalArguments[0][0], 4);
    }
}
