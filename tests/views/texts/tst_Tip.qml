import QtQuick
import QtQuick.Templates as T
import QtTest
import Drossbin.Views

Item {
    T.ApplicationWindow {
        id: host

        width: 900
        height: 650
        visible: true

        TestCase {
            id: test

            name: "Tip"
            when: host.active
            visible: true
            width: 900
            height: 650

            Item {
                id: place

                width: 100
                height: 20

                Tip {
                    id: tip

                    delay: 0
                }
            }

            function init() {
                // Said of a script that the typeface asked for does not have; another one is taken then.
                failOnWarning(/^(?! *OpenType support missing)/);
                place.x = 400;
                place.y = 300;
            }

            function cleanup() {
                tip.visible = false;
                tryCompare(tip, "opened", false);
            }

            function show(text: string) {
                tip.text = text;
                tip.visible = true;
                tryCompare(tip, "opened", true);
            }

            function test_a_short_text_stands_below_its_parent_as_it_is() {
                show("Select all items marked as safe to delete");
                const label = tip.contentItem;
                compare(label.text, "Select all items marked as safe to delete");
                compare(label.textFormat, Text.PlainText);
                compare(label.font.pixelSize, Theme.caption2);
                compare(label.lineCount, 1);
                compare(tip.width, label.implicitWidth + 16);
                compare(tip.y, 24);
            }

            function test_stands_above_its_place_where_the_window_ends_data() {
                return [{ tag: "room below", y: 500, isAbove: false }, { tag: "none", y: 620, isAbove: true }];
            }

            function test_stands_above_its_place_where_the_window_ends(data) {
                place.x = 0;
                place.y = 0;
                place.height = 640;
                tip.place = Qt.rect(60, data.y, 0, 16);
                show("short");
                const corner = tip.contentItem.mapToItem(null, -tip.leftPadding, -tip.topPadding);
                compare(corner.y, data.isAbove ? 616 - tip.height : 520);
                place.height = 20;
                tip.place = Qt.binding(() => Qt.rect(0, 0, place.width, place.height));
            }

            function test_fits_the_smallest_window_data() {
                const rows = [];
                for (const [tag, character] of [["narrow", "i"], ["ordinary", "e"], ["wide", "W"], ["word", "/folder of mine"], ["full", "漢"], ["emoji", "😀"], ["high", "ที่"], ["joined", "ملف"], ["stacked", "क्ष्म्य"], ["piled up", "ཀ" + "ྐ".repeat(40)]])
                    for (const [corner, x, y] of [["top", 0, 0], ["bottom", 850, 630]])
                        rows.push({ tag: tag + " at the " + corner, text: ("/" + character).repeat(4000).slice(0, 4000), x: x, y: y });
                return rows;
            }

            function test_fits_the_smallest_window(data) {
                place.x = data.x;
                place.y = data.y;
                show(data.text);
                const corner = tip.contentItem.mapToItem(null, -tip.leftPadding, -tip.topPadding);
                verify(corner.x >= 8 && corner.x + tip.width <= 892, `${corner.x} ${tip.width}`);
                verify(corner.y >= 8 && corner.y + tip.height <= 642, `${corner.y} ${tip.height}`);
                compare(tip.width, 640);
                verify(tip.contentItem.contentHeight <= tip.contentItem.height);
                verify(tip.contentItem.contentWidth <= tip.contentItem.width);
            }

            function test_an_ordinary_path_of_4000_characters_is_whole() {
                const path = "/Library/Caches/item".repeat(200);
                show(path);
                compare(path.length, 4000);
                compare(tip.contentItem.text, path);
            }

            function test_a_text_that_would_be_higher_loses_its_middle() {
                show("first" + "W".repeat(4000) + "last");
                const text = tip.contentItem.text;
                verify(/^firstW+…W+last$/.test(text), text);
            }
        }
    }
}
