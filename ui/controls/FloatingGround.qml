import QtQuick
import Tavlo

// What floats above the window is drawn on this: a ground with a fine outline and a soft shadow.
Rectangle {
    id: root

    radius: Theme.menuRadius
    color: Theme.menu
    border.color: Theme.separator

    SoftShadow {
        z: -1
        radius: root.radius
    }
}
