import QtQuick

// Lies over the edge of what goes on beyond it, which fades into its ground there.
Rectangle {
    id: root

    required property color ground
    // One of Qt's edges.
    required property int edge

    readonly property bool sideways: root.edge === Qt.LeftEdge || root.edge === Qt.RightEdge
    readonly property bool ahead: root.edge === Qt.LeftEdge || root.edge === Qt.TopEdge
    readonly property color clear: Qt.alpha(root.ground, 0)

    gradient: Gradient {
        orientation: root.sideways ? Gradient.Horizontal : Gradient.Vertical

        GradientStop {
            position: 0
            color: root.ahead ? root.ground : root.clear
        }

        GradientStop {
            position: 1
            color: root.ahead ? root.clear : root.ground
        }
    }
}
