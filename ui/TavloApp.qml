import QtQuick
import QtQuick.Controls.Basic
import Tavlo

// The program's entry: one window with one ContentView.
ApplicationWindow {
    id: root

    title: "Tavlo"
    width: 960
    height: 760
    visible: true

    ContentView {
        anchors.fill: parent
    }
}
