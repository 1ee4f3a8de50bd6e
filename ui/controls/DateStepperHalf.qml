import QtQuick
import QtQuick.Templates as T
import Tavlo

// One of the two buttons of a stepper.
T.AbstractButton {
    id: root

    required property string symbol

    focusPolicy: Qt.NoFocus
    autoRepeat: true
    Accessible.ignored: true

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: root.symbol
            // No higher than the half, or the two would overlap.
            size: Math.round(Theme.bodySize * 0.9)
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
