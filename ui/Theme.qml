pragma Singleton
import QtQuick
import Tavlo

// The one source of colours, type sizes, spacings and durations, in light and dark.
QtObject {
    id: root

    property bool dark: Appearance.dark

    // Grounds
    readonly property color window: root.dark ? "#1b1b1e" : "#f3f3f6"
    readonly property color header: root.dark ? "#242428" : "#fbfbfd"
    readonly property color surface: root.dark ? "#2a2a2f" : "#ffffff"
    readonly property color field: root.dark ? "#1f1f23" : "#ffffff"
    readonly property color menu: root.dark ? "#313137" : "#ffffff"
    readonly property color separator: root.dark ? "#42424a" : "#dddde3"
    readonly property color scrim: root.dark ? "#8c000000" : "#59000000"
    readonly property color shadow: "#000000"

    // Texts
    readonly property color text: root.dark ? "#f1f1f4" : "#1c1c1f"
    readonly property color secondaryText: root.dark ? "#acacb6" : "#5f5f69"
    readonly property color placeholderText: root.dark ? "#9a9aa4" : "#6a6a74"
    readonly property color disabledText: root.dark ? "#7d7d86" : "#92929b"
    readonly property color link: root.dark ? "#7ab4ff" : "#0a58c2"
    readonly property color error: root.dark ? "#ff8a80" : "#c0271d"

    // The accent: the fill of what matters most, and what is written on it
    readonly property color accent: root.dark ? "#7aaef7" : "#1f62c4"
    readonly property color accentHovered: root.dark ? "#8dbafa" : "#1b58b3"
    readonly property color accentPressed: root.dark ? "#6399e6" : "#164a99"
    readonly property color accentText: root.dark ? "#0b1a30" : "#ffffff"
    readonly property color selection: root.accent
    readonly property color selectedText: root.accentText

    // Controls
    readonly property color button: root.dark ? "#38383f" : "#ffffff"
    readonly property color buttonHovered: root.dark ? "#3f3f47" : "#f2f3f7"
    readonly property color buttonPressed: root.dark ? "#2e2e34" : "#e4e6ec"
    readonly property color buttonDisabled: root.dark ? "#323238" : "#eeeef1"
    readonly property color border: root.dark ? "#8b8b95" : "#83838d"
    readonly property color borderDisabled: root.dark ? "#4b4b53" : "#cfcfd6"
    readonly property color focusRing: root.dark ? "#a3c9ff" : "#1f62c4"
    readonly property color scrollBar: root.dark ? "#8b8b95" : "#83838d"
    readonly property color scrollBarHovered: root.dark ? "#b4b4bd" : "#5f5f69"

    // Type, in pixels. Everything follows the size that the user gave to applications.
    readonly property int bodySize: Math.max(13, Math.round(Appearance.fontSize))
    readonly property int largeTitleSize: Math.round(root.bodySize * 26 / 13)
    readonly property int title2Size: Math.round(root.bodySize * 17 / 13)
    readonly property int title3Size: Math.round(root.bodySize * 15 / 13)
    readonly property int captionSize: Math.max(11, Math.round(root.bodySize * 10 / 13))
    // A symbol beside a text of the body's size. Odd, so that its middle line meets the pixels.
    readonly property int symbolSize: 2 * Math.round(root.bodySize * 0.6) + 1

    // Space, in device-independent pixels
    readonly property int spacing: 8
    readonly property int padding: 16
    readonly property int controlPadding: 7
    readonly property int controlRadius: 8
    readonly property int menuRadius: 10
    readonly property int sheetRadius: 14
    readonly property int cardRadius: 12
    readonly property int focusWidth: 2

    // Motion, in milliseconds
    readonly property int duration: 300
    readonly property int shortDuration: 150
    readonly property int hoverDuration: 80
    readonly property int helpDelay: 700
    readonly property var easeInOut: [0.42, 0, 0.58, 1, 1, 1]
}
