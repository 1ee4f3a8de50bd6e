import QtQuick
import Tavlo

// The soft shadow of what floats above the window. It goes behind the item that it fills.
Item {
    id: root

    property real radius: Theme.menuRadius

    anchors.fill: parent

    Repeater {
        model: 10

        Rectangle {
            required property int index

            x: -index
            y: 2 - index * 0.7
            width: root.width + 2 * index
            height: root.height + 2 * index * 0.85
            radius: root.radius + index
            color: Theme.shadow
            opacity: Theme.dark ? 0.05 : 0.018
        }
    }
}
