import QtQuick
import QtQuick.Controls.Basic
import Tavlo

// The program's entry: one window with one ContentView.
ApplicationWindow {
    id: root

    width: Math.max(960, root.minimumWidth)
    height: Math.max(760, root.minimumHeight)
    minimumWidth: content.leastWidth
    minimumHeight: content.leastHeight
    visible: true
    title: "Tavlo"
    color: Theme.window
    font.pixelSize: Theme.bodySize
    LayoutMirroring.enabled: Appearance.rightToLeft
    LayoutMirroring.childrenInherit: true

    ContentView {
        id: content

        anchors.fill: parent
    }
}
