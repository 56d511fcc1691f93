pragma Singleton

import QtQuick
import Drossbin.App
import Drossbin.Views

QtObject {
    id: theme

    /// False when the system asks for reduced motion: nothing moves, everything is just there.
    property bool animated: true
    /// Whether the language of the user is written from right to left: then everything is mirrored.
    property bool mirrored: Qt.locale().textDirection === Qt.RightToLeft
    property bool dark: theme.colorScheme === DesktopSettings.Dark || theme.colorScheme === DesktopSettings.NoPreference && theme.palette.window.hslLightness < 0.5
    /// What the user asked for; where that is nothing the desktop's colours decide.
    property int colorScheme: DesktopSettings.NoPreference
    property bool increasedContrast: false
    readonly property SystemPalette palette: SystemPalette {}

    // Laid over texts and lines, and over fills below white texts, where more contrast is asked for
    readonly property color stronger: !theme.increasedContrast ? "transparent" : theme.dark ? Qt.rgba(1, 1, 1, 0.6) : Qt.rgba(0, 0, 0, 0.4)
    readonly property color deeper: theme.increasedContrast ? Qt.rgba(0, 0, 0, 0.3) : "transparent"

    // Surfaces
    readonly property color window: theme.dark ? "#1c1c1f" : "#ffffff"
    readonly property color sidebar: theme.dark ? "#151517" : "#f5f5f8"
    readonly property color picked: theme.dark ? "#39393c" : "#dcdce1"
    readonly property color sheet: theme.dark ? "#2a2a2d" : "#ffffff"
    readonly property color material: theme.dark ? Qt.rgba(1, 1, 1, 0.06) : Qt.rgba(0, 0, 0, 0.04)
    readonly property color materialHovered: theme.dark ? Qt.rgba(1, 1, 1, 0.09) : Qt.rgba(0, 0, 0, 0.06)
    readonly property color materialPressed: theme.dark ? Qt.rgba(1, 1, 1, 0.13) : Qt.rgba(0, 0, 0, 0.085)
    /// Under white text, so it is dark in both appearances.
    readonly property color darkMaterial: theme.dark ? Qt.rgba(1, 1, 1, 0.08) : Qt.rgba(0.11, 0.11, 0.13, 0.86)
    readonly property color divider: Qt.tint(theme.dark ? Qt.rgba(1, 1, 1, 0.12) : Qt.rgba(0, 0, 0, 0.1), theme.stronger)
    readonly property color outline: Qt.tint(theme.dark ? Qt.rgba(1, 1, 1, 0.16) : Qt.rgba(0, 0, 0, 0.16), theme.stronger)
    readonly property color tooltip: "#3a3a3e"
    readonly property color tooltipEdge: Qt.rgba(1, 1, 1, theme.increasedContrast ? 0.6 : 0.12)
    readonly property color alertEdge: theme.increasedContrast ? theme.orange : theme.tinted(theme.orangeTint, 0.5)
    readonly property color dim: Qt.rgba(0, 0, 0, theme.dark ? 0.5 : 0.25)

    /// One of the shapes that a shadow is made of.
    readonly property color shadow: Qt.rgba(0, 0, 0, theme.dark ? 0.05 : 0.011)

    /// The opacity of what cannot be used.
    readonly property real unavailable: theme.increasedContrast ? 0.75 : 0.4

    // Texts: 4.5:1 and more on every surface that they are on, or 7:1
    readonly property color label: theme.dark ? "#f2f2f5" : "#1d1d1f"
    readonly property color secondary: Qt.tint(theme.dark ? "#b8b8be" : "#58585d", theme.stronger)
    readonly property color tertiary: Qt.tint(theme.dark ? "#a0a0a7" : "#66666b", theme.stronger)
    readonly property color quaternary: theme.dark ? Qt.rgba(1, 1, 1, 0.09) : "#e5e5ea"
    readonly property color bright: "#ffffff"
    readonly property color brightSecondary: "#d2d2d8"
    /// The accent: the hue of the primary fill, and as near to its shade as texts can be.
    readonly property color blue: Qt.tint(theme.dark ? "#2a82ff" : "#0066f5", theme.stronger)
    readonly property color green: Qt.tint(theme.dark ? "#3ddc62" : "#12682c", theme.stronger)
    readonly property color orange: Qt.tint(theme.dark ? "#ffa526" : "#954900", theme.stronger)
    readonly property color red: Qt.tint(theme.dark ? "#ff8077" : "#b8221a", theme.stronger)

    // Behind a text of their colour: clear hues, of which little is enough
    readonly property color greenTint: theme.dark ? theme.green : "#34c759"
    readonly property color orangeTint: theme.dark ? theme.orange : "#ff9500"
    readonly property color redTint: theme.dark ? theme.red : "#ff3b30"

    // Large symbols: 3:1 is enough there, and a lighter hand is friendlier
    readonly property color symbolGreen: Qt.tint(theme.dark ? "#32d74b" : "#209a3e", theme.stronger)
    readonly property color symbolOrange: Qt.tint(theme.dark ? "#ff9f0a" : "#d86e00", theme.stronger)

    // Fills under white labels, the same in both appearances
    readonly property color primaryFill: Qt.tint(Qt.rgba(0, 0.42, 1, 1), theme.deeper)
    readonly property color secondaryFill: Qt.rgba(1, 1, 1, 0.08)
    readonly property color dangerFill: Qt.tint("#d92d20", theme.deeper)
    /// Over a fill while the pointer is: a strong one gets darker, so that white stays readable.
    readonly property color strongHovered: Qt.rgba(0, 0, 0, 0.08)
    readonly property color faintHovered: theme.dark ? Qt.rgba(1, 1, 1, 0.06) : Qt.rgba(0, 0, 0, 0.06)

    // Type scale, in pixels
    readonly property int figure: 36
    readonly property int largeTitle: 28
    readonly property int title: 22
    readonly property int title2: 18
    readonly property int title3: 16
    readonly property int headline: 14
    readonly property int body: 14
    readonly property int caption: 12
    readonly property int caption2: 11

    /// How high a line is: as high as one in Latin letters, whatever typeface its script needs. Otherwise
    /// rows would differ in height, and a sheet or a tooltip in Thai would be too high.
    function lineHeight(pixelSize: real): real {
        return Math.ceil(pixelSize * 1.21);
    }

    // Spacing scale
    readonly property int space2: 2
    readonly property int space3: 3
    readonly property int space4: 4
    readonly property int space6: 6
    readonly property int space8: 8
    readonly property int space10: 10
    readonly property int space12: 12
    readonly property int space16: 16
    readonly property int space20: 20
    readonly property int space24: 24
    readonly property int space32: 32
    /// How high the top of both columns is: what stands in it has its middle in one line.
    readonly property int topLine: 64
    /// What symbols and check boxes stand in the middle of.
    readonly property int frame: 20
    /// How wide a tip may be: one of a few words of ours, and one that shows a whole name or path.
    readonly property int hintWidth: 320
    readonly property int tipWidth: 640
    /// How far apart the lines of a log are.
    readonly property int logPitch: 18

    /// A length rounded up to what is whole in pixels at 125, 150 and 175 % too.
    function onWholePixels(length: real): real {
        return Math.ceil(length / 4) * 4;
    }

    /// The room above what is so high, for its middle to be that of the top line.
    function topRoom(height: real): real {
        return Math.round((theme.topLine - height) / 2);
    }

    // Corners
    readonly property int cornerSmall: 6
    readonly property int corner: 8
    readonly property int cornerMedium: 10
    readonly property int cornerLarge: 12

    // Shadows: how far they reach, in what steps, and how far below they lie
    readonly property int shadowSpread: 20
    readonly property int shadowStep: 2
    readonly property int shadowDrop: 6

    // Durations, in milliseconds
    readonly property int pressed: theme.lasting(150)
    readonly property int progressed: theme.lasting(300)
    readonly property int left: theme.lasting(200)
    readonly property int warned: theme.lasting(250)
    readonly property int dimmed: theme.lasting(250)
    readonly property int standard: theme.lasting(350)
    /// Of what breathes, in or out. It stands still where nothing moves.
    readonly property int breathed: 1000
    /// How long the pointer or the keyboard rests before a tip comes; not a motion.
    readonly property int rested: 500
    /// How long a tip stays where the keyboard rests: the longest is read in less.
    readonly property int told: 7000
    readonly property int sprung: theme.lasting(Spring.duration)

    function lasting(milliseconds: int): int {
        return theme.animated ? milliseconds : 0;
    }

    /// The shade, here and now, of a colour that the data name by its meaning.
    function shade(colorWord: string): color {
        return colorWord === "green" ? theme.green : colorWord === "orange" ? theme.orange : theme.red;
    }

    function riskTint(colorWord: string): color {
        return colorWord === "green" ? theme.greenTint : colorWord === "orange" ? theme.orangeTint : theme.redTint;
    }

    function tinted(color: color, opacity: real): color {
        return Qt.rgba(color.r, color.g, color.b, color.a * opacity);
    }
}
