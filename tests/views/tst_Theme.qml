import QtQuick
import QtTest
import Drossbin.Views

TestCase {
    id: test

    name: "Theme"

    Contrast {
        id: contrast
    }

    function init() {
        failOnWarning(/.?/);
    }

    function cleanup() {
        Theme.dark = false;
        Theme.increasedContrast = false;
    }

    /// What is written on what, the surface below first.
    function pairs(): var {
        const picked = [Theme.sidebar, Theme.picked];
        const selected = [Theme.window, Theme.tinted(Theme.blue, 0.06)];
        const panel = [Theme.sheet, Theme.material];
        const alert = [Theme.sheet, Theme.tinted(Theme.orangeTint, 0.08)];
        return [
            { on: "the window", surfaces: [Theme.window], texts: ["label", "secondary", "tertiary", "blue", "orange", "red"] },
            { on: "the sidebar", surfaces: [Theme.sidebar], texts: ["label", "secondary", "blue"] },
            { on: "a row of the sidebar under the pointer", surfaces: [Theme.sidebar, Theme.materialHovered], texts: ["label", "secondary"] },
            { on: "a pressed row of the sidebar", surfaces: [Theme.sidebar, Theme.materialPressed], texts: ["label", "secondary"] },
            { on: "the picked row of the sidebar", surfaces: picked, texts: ["label", "secondary"] },
            { on: "a sheet", surfaces: [Theme.sheet], texts: ["label", "secondary"] },
            { on: "a list in a sheet", surfaces: panel, texts: ["label", "secondary", "red"] },
            { on: "the alert in a sheet", surfaces: alert, texts: ["label", "secondary"] },
            { on: "a card", surfaces: [Theme.window, Theme.material], texts: ["label", "secondary"] },
            { on: "a card under the pointer", surfaces: [Theme.window, Theme.materialHovered], texts: ["label", "secondary"] },
            { on: "a pressed card", surfaces: [Theme.window, Theme.materialPressed], texts: ["label", "secondary"] },
            { on: "a count on a card under the pointer", surfaces: [Theme.window, Theme.materialHovered, Theme.tinted(Theme.blue, 0.1)], texts: ["label"] },
            { on: "a selected row", surfaces: selected, texts: ["label", "secondary", "tertiary"] },
            { on: "the filter", surfaces: [Theme.window, Theme.tinted(Theme.quaternary, 0.5)], texts: ["label", "tertiary"] },
            { on: "text selected in the filter", surfaces: [Theme.primaryFill], texts: ["bright"] },
            { on: "the browser warning", surfaces: [Theme.window, Theme.tinted(Theme.orangeTint, 0.06)], texts: ["orange"] },
            { on: "the browser tip", surfaces: [Theme.window, Theme.darkMaterial], texts: ["bright", "brightSecondary"] },
            { on: "a primary pill", surfaces: [Theme.primaryFill], texts: ["bright"] },
            { on: "a primary pill under the pointer", surfaces: [Theme.primaryFill, Theme.strongHovered], texts: ["bright"] },
            { on: "a danger pill", surfaces: [Theme.dangerFill], texts: ["bright"] },
            { on: "a danger pill under the pointer", surfaces: [Theme.dangerFill, Theme.strongHovered], texts: ["bright"] },
            { on: "a secondary pill", surfaces: [Theme.window, Theme.secondaryFill], texts: ["secondary"] },
            { on: "a secondary pill under the pointer", surfaces: [Theme.window, Theme.secondaryFill, Theme.faintHovered], texts: ["secondary"] },
            { on: "a secondary pill of a sheet under the pointer", surfaces: [Theme.sheet, Theme.secondaryFill, Theme.faintHovered], texts: ["secondary"] },
            { on: "a tooltip", surfaces: [Theme.tooltip], texts: ["bright"] }
        ].concat(["green", "orange", "red"].map(color => ({ on: "a badge in a selected row", surfaces: selected.concat([Theme.tinted(Theme.riskTint(color), 0.15)]), texts: [color] })));
    }

    function test_texts_stand_out_from_what_they_are_on_data() {
        const rows = [];
        for (const appearance of appearances()) {
            show(appearance);
            for (const pair of pairs())
                for (const text of pair.texts)
                    rows.push({ tag: appearance.tag + ": " + text + " on " + pair.on, ratio: contrast.of(Theme[text], pair.surfaces), least: appearance.increased ? 7 : 4.5 });
        }
        return rows;
    }

    function test_texts_stand_out_from_what_they_are_on(data) {
        verify(data.ratio >= data.least, data.ratio);
    }

    function test_outlines_stand_out_where_more_contrast_is_asked_for_data() {
        return appearances().filter(appearance => appearance.increased);
    }

    function test_outlines_stand_out_where_more_contrast_is_asked_for(data) {
        show(data);
        verify(contrast.of(Theme.tooltipEdge, [Theme.tooltip]) >= 3);
        verify(contrast.of(Theme.alertEdge, [Theme.sheet, Theme.tinted(Theme.orangeTint, 0.08)]) >= 3);
        for (const line of [Theme.divider, Theme.outline])
            for (const surfaces of [[Theme.window], [Theme.sidebar], [Theme.sheet], [Theme.window, Theme.material], [Theme.window, Theme.secondaryFill], [Theme.sheet, Theme.secondaryFill]])
                verify(contrast.of(line, surfaces) >= 3, contrast.of(line, surfaces));
    }

    function test_what_cannot_be_used_is_readable_where_more_contrast_is_asked_for_data() {
        return appearances().filter(appearance => appearance.increased);
    }

    function test_what_cannot_be_used_is_readable_where_more_contrast_is_asked_for(data) {
        show(data);
        const faded = color => Theme.tinted(color, Theme.unavailable);
        const ratios = ["label", "secondary", "tertiary"].map(text => contrast.of(faded(Theme[text]), [Theme.window]));
        const badge = [Theme.window, faded(Theme.tinted(Theme.riskTint("red"), 0.15))];
        ratios.push(contrast.of(contrast.over(faded(Theme.red), Theme.window), badge), contrast.of(faded(Theme.label), [Theme.sidebar]));
        verify(Math.min(...ratios) >= 4.5, ratios);
    }

    function test_all_is_as_stated_where_no_more_contrast_is_asked_for() {
        compare(Theme.primaryFill, Qt.rgba(0, 0.42, 1, 1));
        compare(Theme.dangerFill, "#d92d20");
        compare([Theme.secondary, Theme.tertiary].map(String), ["#58585d", "#66666b"]);
        compare(Theme.divider, Qt.rgba(0, 0, 0, 0.1));
        compare(Theme.alertEdge, Theme.tinted(Theme.orangeTint, 0.5));
        compare([Theme.tooltipEdge.a, Theme.unavailable].map(value => value.toFixed(2)), ["0.12", "0.40"]);
    }

    function test_tints_are_clear_in_light_and_those_of_the_texts_in_dark() {
        const words = ["green", "orange", "red"];
        compare(words.map(word => Theme.riskTint(word).toString()), ["#34c759", "#ff9500", "#ff3b30"]);
        Theme.dark = true;
        compare(words.map(Theme.riskTint), words.map(Theme.shade));
    }

    function test_there_is_one_accent_data() {
        return [{ tag: "light", dark: false, apart: 1.1 }, { tag: "dark", dark: true, apart: 1.3 }];
    }

    function test_there_is_one_accent(data) {
        Theme.dark = data.dark;
        compare(Math.round(Theme.blue.hslHue * 360), Math.round(Theme.primaryFill.hslHue * 360));
        compare(Theme.blue.hslSaturation, Theme.primaryFill.hslSaturation);
        verify(contrast.of(Theme.blue, [Theme.primaryFill]) < data.apart);
    }

    function test_blue_symbols_stand_out_from_what_they_are_on_data() {
        return appearances();
    }

    function test_blue_symbols_stand_out_from_what_they_are_on(data) {
        show(data);
        for (const surface of [Theme.material, Theme.materialHovered, Theme.materialPressed])
            verify(contrast.of(Theme.blue, [Theme.window, surface]) >= 3, surface);
        verify(contrast.of(Theme.blue, [Theme.sidebar, Theme.picked]) >= 3);
        verify(contrast.of(Theme.blue, [Theme.window, Theme.tinted(Theme.blue, 0.08)]) >= 3);
    }

    function test_parts_of_the_meter_are_told_apart_data() {
        return appearances();
    }

    function test_parts_of_the_meter_are_told_apart(data) {
        show(data);
        const track = contrast.over(Theme.quaternary, Theme.sidebar);
        const found = contrast.over(Theme.tinted(Theme.blue, 0.2), track);
        verify(contrast.of(Theme.blue, [found]) >= 3, contrast.of(Theme.blue, [found]));
        verify(contrast.of(found, [track]) >= 1.25, contrast.of(found, [track]));
        verify(contrast.of(track, [Theme.sidebar]) >= 1.14, contrast.of(track, [Theme.sidebar]));
        verify(contrast.of(Theme.divider, [Theme.sidebar]) >= 1.2, "its outline");
    }

    function test_cards_stand_off_the_window_data() {
        return appearances();
    }

    function test_cards_stand_off_the_window(data) {
        show(data);
        const surface = contrast.over(Theme.material, Theme.window);
        verify(contrast.of(surface, [Theme.window]) >= 1.09, contrast.of(surface, [Theme.window]));
        const edge = contrast.over(Theme.divider, surface);
        verify(contrast.of(edge, [Theme.window]) >= 1.3, contrast.of(edge, [Theme.window]));
    }

    function test_tinting_what_can_be_seen_through_keeps_its_share() {
        compare(Theme.tinted(Qt.rgba(1, 0, 0, 0.5), 0.5), Qt.rgba(1, 0, 0, 0.25));
        compare(Theme.tinted(Qt.rgba(0, 0, 1, 1), 0.25), Qt.rgba(0, 0, 1, 0.25));
    }

    function appearances(): var {
        return [
            { tag: "light", dark: false, increased: false },
            { tag: "dark", dark: true, increased: false },
            { tag: "light, increased", dark: false, increased: true },
            { tag: "dark, increased", dark: true, increased: true }
        ];
    }

    function show(appearance: var): void {
        Theme.dark = appearance.dark;
        Theme.increasedContrast = appearance.increased;
    }

    function test_large_symbols_stand_out_from_what_they_are_on_data() {
        return appearances();
    }

    function test_large_symbols_stand_out_from_what_they_are_on(data) {
        show(data);
        verify(contrast.of(Theme.symbolGreen, [Theme.window]) >= 3);
        verify(contrast.of(Theme.symbolGreen, [Theme.sheet]) >= 3);
        verify(contrast.of(Theme.symbolOrange, [Theme.sheet]) >= 3);
    }
}
