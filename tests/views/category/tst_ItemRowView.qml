import QtQuick
import QtTest
import Drossbin.Views
import ".."

TestCase {
    id: test

    name: "ItemRowView"
    when: windowShown
    width: 900
    height: 400
    visible: true

    readonly property string protection: "Protected: it may hold passwords, keys or settings, so it cannot be selected"

    Finder {
        id: find
    }

    Names {
        id: names
    }

    Component {
        id: rowComponent

        ItemRowView {
            y: 150
            width: 660
            name: "npm cache"
            path: "/home/user/.npm"
            symbol: "shippingbox"
            hasNote: true
            note: "Downloaded again when it is needed."
            riskColor: "green"
            riskLabel: "Safe to Clear"
            riskSymbol: "checkmark.circle.fill"
            dateText: "4 wk. ago"
            sizeText: "1.1 GB"
            isSelected: false
            isProtected: false
            isCurrent: true
        }
    }

    SignalSpy {
        id: toggles

        signalName: "toggled"
    }

    function init() {
        // Said of a script that the typeface asked for does not have; another one is taken then.
        failOnWarning(/^(?! *OpenType support missing)/);
        Theme.animated = false;
    }

    function make(properties: var): ItemRowView {
        const row = createTemporaryObject(rowComponent, test, properties ?? {});
        toggles.target = row;
        toggles.clear();
        waitForRendering(row, 200);
        return row;
    }

    function checkBox(row: ItemRowView): Item {
        return find.control(row, Accessible.CheckBox, row.name);
    }

    function leftOf(item: Item, row: ItemRowView): real {
        return item.mapToItem(row, 0, 0).x;
    }

    function rightOf(item: Item, row: ItemRowView): real {
        return leftOf(item, row) + item.width;
    }

    function test_shows_name_path_risk_date_and_size() {
        compare(find.texts(make()), ["npm cache", "/home/user/.npm", "Safe to Clear", "4 wk. ago", "1.1 GB"]);
    }

    function test_stands_12_apart_in_columns() {
        const row = make();
        const box = checkBox(row);
        const frame = find.symbol(row, "shippingbox").parent;
        const names = find.label(row, "npm cache");
        const information = find.button(row, "Information");
        const badge = find.label(row, "Safe to Clear").parent.parent;
        const date = find.label(row, "4 wk. ago");
        const size = find.label(row, "1.1 GB").parent;
        tryVerify(() => leftOf(badge, row) > leftOf(information, row)); // laid out
        compare(leftOf(find.symbol(box, "circle").parent, row) + box.width / 2, 8 + 10);
        compare(leftOf(frame, row), 8 + 20 + 12);
        compare(frame.width, 20);
        compare(leftOf(names, row) - rightOf(frame, row), 12);
        compare(leftOf(information, row) - rightOf(names, row), 12);
        compare(leftOf(badge, row) - rightOf(information, row), 12);
        compare(leftOf(date, row) - rightOf(badge, row), 12);
        compare(date.width, 70);
        compare(date.horizontalAlignment, Text.AlignHCenter);
        compare(date.font.pixelSize, Theme.caption);
        verify(Qt.colorEqual(date.color, Theme.secondary));
        compare(leftOf(size, row) - rightOf(date, row), 12);
        compare(size.width, 80);
        compare(rightOf(size, row), row.width - 8);
        compare(rightOf(find.label(row, "1.1 GB"), row), row.width - 8);
    }

    function test_the_longest_dates_fit_their_column_and_the_row_data() {
        return [
            { tag: "English", text: "100 min. ago" },
            { tag: "German", text: "vor 11 Monaten" },
            { tag: "French", text: "il y a 11 sem." },
            { tag: "Arabic", text: "قبل دقيقة واحدة" },
            { tag: "Arabic with a number", text: "قبل ١١ أسبوعًا" },
            { tag: "Japanese", text: "100 か月前" }
        ];
    }

    function test_the_longest_dates_fit_their_column_and_the_row(data) {
        if (/[\u0600-\u06ff]/.test(data.text) && !Qt.fontFamilies().includes("KacstOne"))
            skip("no typeface here has these letters, and the boxes in their place are wider");
        const row = make({ dateText: data.text });
        const date = find.label(row, data.text);
        compare(date.width, 70);
        compare(date.truncated, false);
        verify(date.contentWidth <= 70);
        verify(date.height <= row.height - row.topPadding - row.bottomPadding);
        compare(row.height, make().height);
    }

    function test_is_equally_high_in_all_scripts_data() {
        return names.rows;
    }

    function test_is_equally_high_in_all_scripts(data) {
        compare(make({ name: data.name, path: `/home/user/${data.name}` }).height, make().height);
    }

    function test_is_padded_4_above_and_below_with_3_between_its_lines() {
        const row = make();
        const name = find.label(row, "npm cache");
        const path = find.label(row, "/home/user/.npm");
        const top = name.mapToItem(row, 0, 0).y;
        verify(top >= 4 && top < 6);
        compare(path.mapToItem(row, 0, 0).y, top + name.height + 3);
        verify(Math.abs(row.height - top - (top + name.height + 3 + path.height)) <= 1, "in the middle");
        compare(name.font.pixelSize, Theme.body);
        compare(path.font.pixelSize, Theme.caption2);
        verify(Qt.colorEqual(path.color, Theme.tertiary));
    }

    // The list fills itself by it, before anything is laid out for a frame.
    function test_is_as_high_when_it_is_made_as_when_it_is_shown() {
        const row = createTemporaryObject(rowComponent, test);
        const height = row.implicitHeight;
        waitForRendering(row, 200);
        compare(height, row.implicitHeight);
    }

    function test_rows_2_apart_stand_on_whole_pixels_at_every_scale() {
        // Other paddings stand for other fonts, whose lines are higher.
        for (const padding of [4, 4.5, 5, 6]) {
            const pitch = make({ verticalPadding: padding }).height + 2;
            for (const scale of [1, 1.25, 1.5, 1.75, 2])
                compare(pitch * scale % 1, 0, `${padding} at ${scale}`);
        }
    }

    function test_check_box_is_pressed_in_all_of_the_rows_beginning() {
        const row = make();
        compare(checkBox(row).mapToItem(row, 0, 0), Qt.point(0, 0));
        compare(checkBox(row).width, 36);
        compare(checkBox(row).height, row.height);
        for (const [x, y] of [[1, 1], [35, 1], [1, row.height - 1], [35, row.height - 1]])
            mouseClick(row, x, y);
        compare(toggles.count, 4);
        mouseClick(row, 37, row.height / 2);
        compare(toggles.count, 4);
    }

    function risks(): var {
        return [
            { riskColor: "green", riskLabel: "Safe to Clear", riskSymbol: "checkmark.circle.fill" },
            { riskColor: "orange", riskLabel: "Review First", riskSymbol: "exclamationmark.triangle.fill" },
            { riskColor: "red", riskLabel: "Protected", riskSymbol: "xmark.octagon.fill" }
        ];
    }

    /// What stands in the row, from its beginning to its end.
    function columns(row: ItemRowView): var {
        const size = find.label(row, row.sizeText).parent;
        const badge = find.seen(row).find(item => item instanceof RiskBadge);
        return [checkBox(row), find.symbol(row, row.symbol).parent, find.label(row, row.name).parent, find.button(row, "Information"), badge, find.label(row, row.dateText), size].filter(item => item);
    }

    function test_a_name_keeps_140_before_the_date_and_the_words_of_the_risk_data() {
        return [
            { tag: "in a window of 640", width: 640 - 241 - 16, date: false, words: false },
            { tag: "just too narrow for the words", width: 462, date: false, words: false },
            { tag: "in a window of 720", width: 720 - 241 - 16, date: false, words: true },
            { tag: "just too narrow for the date", width: 544, date: false, words: true },
            { tag: "wide enough for all", width: 545, date: true, words: true },
            { tag: "in a window of 900", width: 900 - 241 - 16, date: true, words: true }
        ];
    }

    function test_a_name_keeps_140_before_the_date_and_the_words_of_the_risk(data) {
        for (const risk of risks()) {
            for (const hasNote of [true, false]) {
                const row = make(Object.assign({ width: data.width, hasNote: hasNote, name: "n".repeat(255), sizeText: "888.88 GB" }, risk));
                const label = find.label(row, row.name);
                tryVerify(() => label.width >= 140, 1000, `${risk.riskLabel} ${label.width}`);
                compare(find.label(row, row.dateText) !== null, data.date);
                const badge = find.seen(row).find(item => item instanceof RiskBadge);
                compare(badge.width > 40, data.words);
                verify(find.symbol(badge, risk.riskSymbol) !== null);
                compare(find.control(row, Accessible.StaticText, risk.riskLabel) !== null, true);
                const stand = columns(row);
                for (let index = 1; index < stand.length; ++index)
                    verify(leftOf(stand[index], row) >= rightOf(stand[index - 1], row), `${index}`);
                verify(stand.every(item => item.width > 0));
                compare(rightOf(stand[stand.length - 1], row), data.width - 8);
            }
        }
    }

    function test_sizes_line_up_digit_by_digit() {
        const ones = find.label(make({ sizeText: "111.1 GB" }), "111.1 GB");
        const eights = find.label(make({ sizeText: "888.8 GB" }), "888.8 GB");
        compare(ones.implicitWidth, eights.implicitWidth);
    }

    function test_selected_it_is_tinted_and_checked() {
        const row = make({ isSelected: true });
        verify(Qt.colorEqual(row.background.color, Theme.tinted(Theme.blue, 0.06)));
        compare(row.background.radius, 8);
        verify(find.symbol(checkBox(row), "checkmark.circle.fill") !== null);
        compare(checkBox(row).Accessible.checked, true);
        compare(row.Accessible.selected, true);
    }

    function test_unselected_it_has_no_colour_and_an_empty_circle() {
        const row = make();
        compare(row.background.color.a, 0);
        verify(find.symbol(checkBox(row), "circle") !== null);
        compare(checkBox(row).Accessible.checked, false);
        compare(row.Accessible.selected, false);
    }

    function test_check_box_toggles_and_the_rest_of_the_row_does_not() {
        const row = make();
        mouseClick(checkBox(row));
        compare(toggles.count, 1);
        mouseClick(find.label(row, "npm cache"));
        mouseClick(find.label(row, "1.1 GB"));
        compare(toggles.count, 1);
        // Only its owner changes what it shows.
        compare(row.isSelected, false);
    }

    function test_keys_press_the_check_box_data() {
        return [{ tag: "Space", key: Qt.Key_Space }, { tag: "Return", key: Qt.Key_Return }];
    }

    function test_keys_press_the_check_box(data) {
        const row = make();
        checkBox(row).forceActiveFocus(Qt.TabFocusReason);
        keyClick(data.key);
        compare(toggles.count, 1);
    }

    function test_protected_it_is_dimmed_and_does_not_react() {
        const row = make({ isProtected: true, riskColor: "red", riskLabel: "Protected", riskSymbol: "xmark.octagon.fill" });
        compare(row.opacity, 0.4);
        compare(row.enabled, false);
        mouseClick(checkBox(row));
        mouseClick(find.button(row, "Information"));
        // As assistive programs press them.
        checkBox(row).clicked();
        find.button(row, "Information").clicked();
        compare(toggles.count, 0);
        compare(row.showInfo, false);
    }

    function test_protected_its_controls_are_told_to_be_disabled_data() {
        return [{ tag: "protected", isProtected: true }, { tag: "unprotected", isProtected: false }];
    }

    function test_protected_its_controls_are_told_to_be_disabled(data) {
        const row = make({ isProtected: data.isProtected });
        for (const [role, name] of [[Accessible.CheckBox, row.name], [Accessible.Button, "Information"]]) {
            const told = find.seen(row).filter(item => item.Accessible.role === role && item.Accessible.name === name && !item.Accessible.ignored);
            compare(told.length, 1);
            compare(told[0] instanceof AccessItem, data.isProtected);
            compare(told[0].enabled, !data.isProtected);
            compare(told[0].Accessible.description, role === Accessible.Button ? "About this item" : data.isProtected ? test.protection : "");
        }
        compare(find.texts(row)[0], "npm cache");
    }

    function test_protected_it_says_why_it_cannot_be_selected() {
        compare(make({ isProtected: true }).hint, test.protection);
        compare(make().hint, "");
    }

    function test_unprotected_it_is_opaque_and_enabled() {
        const row = make();
        compare(row.opacity, 1);
        compare(row.enabled, true);
    }

    function test_without_a_note_it_has_no_information_button() {
        compare(find.button(make({ hasNote: false, note: "" }), "Information"), null);
    }

    function test_an_empty_note_still_has_an_information_button() {
        verify(find.button(make({ note: "" }), "Information") !== null);
    }

    function test_names_from_the_disk_are_shown_as_they_are_data() {
        return [
            { tag: "markup", text: "<h1>x</h1>" },
            { tag: "image", text: "<img src=\"file:///etc/hostname\">" },
            { tag: "ampersand", text: "a&b" },
            { tag: "entity", text: "&lt;" }
        ];
    }

    function test_names_from_the_disk_are_shown_as_they_are(data) {
        const row = make({ name: data.text, path: "/" + data.text });
        compare(find.label(row, data.text).textFormat, Text.PlainText);
        compare(find.label(row, "/" + data.text).textFormat, Text.PlainText);
        compare(row.Accessible.name, data.text);
    }

    function test_long_names_and_paths_lose_their_middle() {
        const name = "n".repeat(255);
        const path = "/p".repeat(2000);
        const row = make({ name: name, path: path });
        for (const text of [name, path]) {
            const label = find.label(row, text);
            compare(label.truncated, true);
            compare(label.elide, Text.ElideMiddle);
            verify(label.contentWidth <= label.width);
            compare(label.lineCount, 1);
        }
    }

    function test_stays_in_its_columns_at_any_width_data() {
        return [{ tag: "narrowest", width: 383 }, { tag: "narrow", width: 620 }, { tag: "wide", width: 2300 }];
    }

    function test_stays_in_its_columns_at_any_width(data) {
        const row = make({ width: data.width, name: "n".repeat(255), sizeText: "9.22 EB" });
        compare(rightOf(find.label(row, "9.22 EB"), row), data.width - 8);
        compare(rightOf(find.label(row, row.name), row) + 12, leftOf(find.button(row, "Information"), row));
    }

    function test_is_mirrored_right_to_left() {
        const row = make();
        row.LayoutMirroring.enabled = true;
        row.LayoutMirroring.childrenInherit = true;
        compare(rightOf(checkBox(row), row), row.width);
        compare(leftOf(find.label(row, "1.1 GB"), row), 8);
        compare(find.label(row, "npm cache").effectiveHorizontalAlignment, Text.AlignRight);
    }

    function test_a_size_too_long_for_its_column_shrinks_to_fit() {
        const row = make({ sizeText: "9,999.99 exabytes" });
        const size = find.label(row, "9,999.99 exabytes");
        verify(size.implicitWidth > 80);
        fuzzyCompare(size.width * size.scale, 80, 0.01);
        compare(find.label(make(), "1.1 GB").scale, 1);
    }

    function test_is_a_list_item_named_after_the_item() {
        const row = make();
        compare(row.Accessible.role, Accessible.ListItem);
        compare(row.Accessible.name, "npm cache");
        compare(row.Accessible.description, "/home/user/.npm");
        compare(make({ isProtected: true }).Accessible.description, "Disabled, /home/user/.npm. " + test.protection);
    }

    function test_rings_lie_clear_of_their_symbols() {
        const row = make();
        for (const control of [checkBox(row), find.button(row, "Information")]) {
            control.forceActiveFocus(Qt.TabFocusReason);
            const ring = find.seen(control).find(item => item.border?.width === 2);
            const symbol = ring.parent;
            compare(ring.mapToItem(symbol, 0, 0), Qt.point(-4, -4));
            compare(ring.width, symbol.width + 8);
            compare(ring.height, symbol.height + 8);
            compare(ring.radius, ring.width / 2);
            verify(ring.mapToItem(row, 0, 0).y >= 2, "inside the row's own ring");
        }
    }

    function test_information_opens_the_note_and_escape_closes_it() {
        const row = make();
        const information = find.button(row, "Information");
        information.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Space);
        compare(row.showInfo, true);
        keyClick(Qt.Key_Escape);
        tryCompare(row, "showInfo", false);
        compare(information.activeFocus, true);
        compare(information.visualFocus, true);
    }
}
