import QtQuick
import QtQuick.Templates as T
import Tavlo

// The upper half of a stepper; the lower one is this turned about.
T.AbstractButton {
    id: root

    focusPolicy: Qt.NoFocus
    autoRepeat: true
    Accessible.ignored: true

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            anchors.verticalCenterOffset: root.height * 0.08
            name: "chevron.left"
            size: Math.round(Theme.bodySize * 0.9)
            rotation: 90
        }
    }

    background: Rectangle {
        anchors.fill: parent
        anchors.margins: 1
        radius: Theme.controlRadius / 2
        color: {
            if (root.down)
                return Theme.buttonPressed;
            return root.hovered ? Theme.buttonHovered : "transparent";
        }
    }
}
