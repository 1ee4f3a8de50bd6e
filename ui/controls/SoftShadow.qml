import QtQuick
import Tavlo

// The soft shadow of what floats above the window. It goes behind the item that it fills.
Item {
    id: root

    property real radius: Theme.menuRadius

    anchors.fill: parent

    Repeater {
        // The corner radius of each ring, from the inside out.
        model: Array.from({
                "length": 10
            }, (_, width) => root.radius + width)
        delegate: SoftShadowRing {
        }
    }
}
