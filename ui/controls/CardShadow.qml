import QtQuick
import Tavlo

// A soft shadow of radius 2, without offset, around the card that it fills. It is laid up from
// translucent frames, each a little narrower, which are sharp at every scale and fit a card of any
// height. At the card's edge they add up to half of the full strength, 0.33, as any blurred edge
// does. Frames, not plates: nothing dark shows through a card that fades.
Item {
    id: root

    property real radius: Theme.cardRadius

    anchors.fill: parent

    Rectangle {
        anchors.fill: parent
        anchors.margins: -3
        radius: root.radius + 3
        color: "transparent"
        border.width: 4
        border.color: Theme.shadow
        opacity: 0.015
        antialiasing: true
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: -2
        radius: root.radius + 2
        color: "transparent"
        border.width: 3
        border.color: Theme.shadow
        opacity: 0.03
        antialiasing: true
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: -1.25
        radius: root.radius + 1.25
        color: "transparent"
        border.width: 2
        border.color: Theme.shadow
        opacity: 0.05
        antialiasing: true
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: -0.5
        radius: root.radius + 0.5
        color: "transparent"
        border.width: 1
        border.color: Theme.shadow
        opacity: 0.08
        antialiasing: true
    }
}
