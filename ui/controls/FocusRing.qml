import QtQuick
import Tavlo

// The ring around the control that keys go to. It lies a little outside the item that it fills.
Rectangle {
    id: root

    // The corner radius of the control.
    property real innerRadius: Theme.controlRadius
    property int gap: 2

    anchors.fill: parent
    anchors.margins: -root.gap - Theme.focusWidth
    radius: root.innerRadius + root.gap + Theme.focusWidth
    color: "transparent"
    border.color: Theme.focusRing
    border.width: Theme.focusWidth
}
