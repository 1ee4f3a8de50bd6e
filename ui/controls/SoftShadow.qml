import QtQuick
import Tavlo

// The soft shadow of what floats above the window. It goes behind the item that it fills.
Item {
    id: root

    property real radius: Theme.menuRadius
    readonly property int reach: 12

    anchors.fill: parent

    Repeater {
        // From the inside out. The last ones are all but clear, so that the shadow has no edge.
        model: Array.from({
                "length": root.reach
            }, (_, width) => ({
                        "radius": root.radius + width,
                        "strength": 1 - width / root.reach
                    }))
        delegate: SoftShadowRing {
        }
    }
}
