import QtQuick
import Tavlo

// One of the rings that add up to a soft shadow, each wider than the one before. They lean
// downwards a little, as if the light came from above.
Rectangle {
    id: root

    required property int index
    // Its corner radius, and its share of the shadow.
    required property var modelData

    anchors.fill: parent
    anchors.leftMargin: -root.index
    anchors.rightMargin: -root.index
    anchors.topMargin: 2 - root.index * 0.7
    anchors.bottomMargin: -2 - root.index
    radius: root.modelData.radius
    color: Theme.shadow
    opacity: root.modelData.strength * (Theme.dark ? 0.08 : 0.03)
}
