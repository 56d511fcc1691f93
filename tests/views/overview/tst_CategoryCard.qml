import QtQuick
import QtTest
import Drossbin.Views
import ".."

TestCase {
    id: test

    name: "CategoryCard"
    when: windowShown
    width: 400
    height: 300
    visible: true

    Finder {
        id: finder
    }

    CategoryCard {
        id: card

        width: 220
        name: "Package Caches"
        symbol: "shippingbox"
        subtitle: "npm, Homebrew, pip, yarn"
        countText: "1,204"
        sizeText: "Zero KB"
        caption: "1,204 items · Zero KB"
    }

    SignalSpy {
        id: clicks

        target: card
        signalName: "clicked"
    }

    function init() {
        failOnWarning(/.?/);
        Theme.dark = false;
        clicks.clear();
    }

    function test_texts_from_top_to_bottom() {
        compare(finder.texts(card), ["1,204", "Package Caches", "npm, Homebrew, pip, yarn", "Zero KB"]);
    }

    function test_texts_end_at_one_edge_when_mirrored() {
        card.LayoutMirroring.enabled = true;
        card.LayoutMirroring.childrenInherit = true;
        const edges = ["Package Caches", "npm, Homebrew, pip, yarn", "Zero KB"].map(text => {
            const label = finder.label(card, text);
            return label.mapToItem(card, label.width, 0).x;
        });
        compare(edges, [card.width - 16, card.width - 16, card.width - 16]);
        card.LayoutMirroring.enabled = false;
    }

    function test_symbol_is_blue_in_the_title_2_size() {
        const symbol = finder.symbol(card, "shippingbox");
        compare(symbol.size, Theme.title2);
        verify(Qt.colorEqual(symbol.color, Theme.blue));
    }

    function test_count_stands_in_a_blue_capsule() {
        const count = finder.label(card, "1,204");
        const capsule = count.parent;
        compare(count.font.pixelSize, Theme.caption);
        compare(capsule.width, count.width + 16);
        compare(capsule.height, count.height + 4);
        compare(capsule.radius, capsule.height / 2);
        fuzzyCompare(capsule.color.a, 0.1, 0.003);
        compare(capsule.mapToItem(card, capsule.width, 0).x, card.width - 16);
    }

    function test_shows_that_it_is_pressed() {
        mousePress(card);
        verify(Qt.colorEqual(card.background.color, Theme.materialPressed));
        mouseRelease(card);
        verify(!Qt.colorEqual(card.background.color, Theme.materialPressed));
    }

    function test_type_scale() {
        const sizes = ["Package Caches", "npm, Homebrew, pip, yarn", "Zero KB"].map(text => finder.label(card, text).font.pixelSize);
        compare(sizes, [Theme.headline, Theme.caption, Theme.title3]);
        compare(finder.label(card, "Package Caches").font.weight, Font.DemiBold);
        compare(finder.label(card, "Zero KB").font.weight, Font.Bold);
        verify(Qt.colorEqual(finder.label(card, "npm, Homebrew, pip, yarn").color, Theme.secondary));
        verify(Qt.colorEqual(finder.label(card, "Zero KB").color, Theme.label));
    }

    function test_rows_stand_8_apart_from_the_leading_edge() {
        const rows = Array.from(card.contentItem.children);
        for (let index = 1; index < rows.length; ++index)
            compare(rows[index].y - rows[index - 1].y - rows[index - 1].height, 8);
        const last = rows[rows.length - 1];
        compare(rows[0].mapToItem(card, 0, 0), Qt.point(16, 16));
        compare(last.mapToItem(card, last.width, last.height), Qt.point(card.width - 16, card.height - 16));
    }

    function test_hairline_stands_it_off_the_window() {
        compare(card.background.border.width, 1);
        verify(Qt.colorEqual(card.background.border.color, Theme.divider));
    }

    function test_corner_radius_is_12() {
        compare(card.background.radius, 12);
        verify(Qt.colorEqual(card.background.color, Theme.material));
    }

    function test_is_a_button_named_after_the_category() {
        compare(card.Accessible.role, Accessible.Button);
        compare(card.Accessible.name, "Package Caches");
        compare(card.Accessible.description, "1,204 items · Zero KB");
    }

    function test_press_and_keys_choose_it() {
        mouseClick(card);
        card.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Space);
        keyClick(Qt.Key_Return);
        compare(clicks.count, 3);
        keyClick(Qt.Key_A);
        mouseClick(test, 300, 20);
        compare(clicks.count, 3);
    }
}
