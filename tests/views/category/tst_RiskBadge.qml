import QtQuick
import QtTest
import Drossbin.Views
import ".."

TestCase {
    id: test

    name: "RiskBadge"
    when: windowShown
    width: 300
    height: 200
    visible: true

    Finder {
        id: find
    }

    Component {
        id: badge

        RiskBadge {
            riskColor: "green"
            riskLabel: "Safe to Clear"
            riskSymbol: "checkmark.circle.fill"
        }
    }

    function init() {
        failOnWarning(/.?/);
    }

    function test_shows_symbol_and_label_in_the_colour_of_the_risk_data() {
        return [
            { tag: "safe", label: "Safe to Clear", symbol: "checkmark.circle.fill", color: "green" },
            { tag: "caution", label: "Review First", symbol: "exclamationmark.triangle.fill", color: "orange" },
            { tag: "critical", label: "Protected", symbol: "xmark.octagon.fill", color: "red" }
        ];
    }

    function test_shows_symbol_and_label_in_the_colour_of_the_risk(data) {
        const item = createTemporaryObject(badge, test, { riskColor: data.color, riskLabel: data.label, riskSymbol: data.symbol });
        const color = Theme[data.color];
        compare(find.texts(item), [data.label]);
        verify(Qt.colorEqual(find.label(item, data.label).color, color));
        verify(Qt.colorEqual(find.symbol(item, data.symbol).color, color));
        verify(Qt.colorEqual(item.color, Theme.tinted(Theme.riskTint(data.color), 0.15)));
    }

    function test_is_a_capsule_padded_8_and_3_around_symbol_and_label_3_apart() {
        const item = createTemporaryObject(badge, test);
        const symbol = find.symbol(item, "checkmark.circle.fill");
        const label = find.label(item, "Safe to Clear");
        compare(item.radius, item.height / 2);
        compare(item.width, 8 + symbol.width + 3 + label.width + 8);
        compare(item.height, label.height + 6);
        compare(symbol.mapToItem(item, 0, 0).x, 8);
        compare(label.mapToItem(item, 0, 0), Qt.point(8 + symbol.width + 3, 3));
        compare(label.font.pixelSize, Theme.caption2);
        compare(symbol.size, Theme.caption2);
    }

    function test_without_its_label_the_symbol_stands_alone_and_is_told() {
        const item = createTemporaryObject(badge, test, { showsLabel: false });
        const whole = createTemporaryObject(badge, test);
        const symbol = find.symbol(item, "checkmark.circle.fill");
        compare(item.width, 8 + symbol.width + 8);
        compare(item.height, whole.height);
        compare(symbol.mapToItem(item, 0, 0).x, 8);
        compare(find.labels(item).map(label => label.Accessible.name), ["Safe to Clear"]);
        compare(find.labels(whole).map(label => label.Accessible.name), ["Safe to Clear"]);
    }
}
