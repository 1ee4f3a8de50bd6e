import QtQuick
import Tavlo

// A soft shadow of radius 2, without offset, around a card of the same size as this item. It is
// laid up from translucent plates, each a little larger, which is sharp at every scale and fits
// a card of any height. Their sum at the card's edge is half of the shadow's full strength, as of
// any blurred edge; under the card it is hidden.
Item {
    id: root

    required property real radius

    component Plate: Rectangle {
        required property real outset

        anchors.fill: parent
        anchors.margins: -outset
        radius: root.radius + outset
        color: Theme.shadow
        antialiasing: true
    }

    Plate {
        outset: 3
        opacity: 0.015
    }

    Plate {
        outset: 2
        opacity: 0.03
    }

    Plate {
        outset: 1.25
        opacity: 0.05
    }

    Plate {
        outset: 0.5
        opacity: 0.08
    }
}
