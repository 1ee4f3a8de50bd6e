import QtQuick
import QtQuick.Templates as T
import Tavlo

// A scroll bar that shows while there is something to scroll.
T.ScrollBar {
    id: root

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: 3
    minimumSize: 0.08
    visible: root.size < 1 && root.policy !== T.ScrollBar.AlwaysOff

    contentItem: Rectangle {
        implicitWidth: 6
        implicitHeight: 6
        radius: 3
        color: root.pressed || root.hovered ? Theme.scrollBarHovered : Theme.scrollBar
    }
}
