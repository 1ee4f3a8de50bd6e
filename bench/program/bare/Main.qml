import QtQuick
import QtQuick.Controls.Basic

ApplicationWindow {
    width: 960
    height: 760
    visible: true
    title: "Bare"

    Label {
        anchors.centerIn: parent
        text: "A label"
    }
}
