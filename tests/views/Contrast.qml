import QtQuick

/// How well a colour stands out from what it lies on, as the guidelines for readable texts work it
/// out: 1 not at all, 21 as black on white.
QtObject {
    function of(text: color, surfaces: list<color>): real {
        const ground = surfaces.reduce((below, above) => over(above, below));
        const shades = [over(text, ground), ground].map(luminance).sort((one, other) => other - one);
        return (shades[0] + 0.05) / (shades[1] + 0.05);
    }

    function over(above: color, below: color): color {
        const mix = (one, other) => one * above.a + other * (1 - above.a);
        return Qt.rgba(mix(above.r, below.r), mix(above.g, below.g), mix(above.b, below.b), 1);
    }

    function luminance(color: color): real {
        const linear = part => part <= 0.04045 ? part / 12.92 : Math.pow((part + 0.055) / 1.055, 2.4);
        return 0.2126 * linear(color.r) + 0.7152 * linear(color.g) + 0.0722 * linear(color.b);
    }
}
