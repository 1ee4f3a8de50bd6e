import QtQuick
import QtQuick.Controls.Basic
import Tavlo

// The program's entry: one window with one ContentView.
ApplicationWindow {
    id: root

    // What the desktop may draw around a window, at most.
    readonly property int frame: 48

    minimumWidth: content.leastWidth
    minimumHeight: content.leastHeight
    title: "Tavlo"
    color: Theme.window
    font.pixelSize: Theme.bodySize
    LayoutMirroring.enabled: Appearance.rightToLeft
    LayoutMirroring.childrenInherit: true
    // A size to begin with; from then on it is the user's.
    Component.onCompleted: {
        root.width = Math.max(root.minimumWidth, Math.min(960, root.Screen.desktopAvailableWidth - root.frame));
        root.height = Math.max(root.minimumHeight, Math.min(760, root.Screen.desktopAvailableHeight - root.frame));
        root.show();
    }

    ContentView {
        id: content

        anchors.fill: parent
    }
}
