pragma Singleton

import QtQuick

// The one source of colours, type sizes, spacings and durations, in light and dark.
QtObject {
    id: root

    property bool dark: false

    // Grounds
    readonly property color window: root.dark ? "#1c1c1f" : "#f4f4f6"
    readonly property color header: root.dark ? "#26262a" : "#fbfbfc"
    readonly property color surface: root.dark ? "#2a2a2f" : "#ffffff"
    readonly property color field: root.dark ? "#1f1f23" : "#ffffff"
    readonly property color separator: root.dark ? "#3a3a40" : "#dcdce1"
    readonly property color scrim: "#66000000"
    readonly property color shadow: "#000000"

    // Texts
    readonly property color text: root.dark ? "#f2f2f5" : "#1c1c1f"
    readonly property color secondaryText: root.dark ? "#a9a9b3" : "#62626b"
    readonly property color link: root.dark ? "#7ab4ff" : "#0a58c2"
    readonly property color error: root.dark ? "#ff8a80" : "#c0271d"

    // Controls
    readonly property color accent: root.dark ? "#3d7dd8" : "#1f62c4"
    readonly property color accentText: "#ffffff"
    readonly property color border: root.dark ? "#85858f" : "#86868f"
    readonly property color focusRing: root.dark ? "#8fc0ff" : "#1f62c4"

    // Type, in pixels
    readonly property real bodySize: 13
    readonly property real largeTitleSize: root.bodySize * 26 / 13
    readonly property real title2Size: root.bodySize * 17 / 13
    readonly property real title3Size: root.bodySize * 15 / 13
    readonly property real captionSize: Math.max(11, root.bodySize * 10 / 13)

    // Space, in device-independent pixels
    readonly property int spacing: 8
    readonly property int padding: 16

    // Motion
    readonly property int duration: 300
    readonly property var easeInOut: [0.42, 0, 0.58, 1, 1, 1]
}
