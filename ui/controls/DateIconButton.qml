import QtQuick
import QtQuick.Templates as T
import Tavlo

// A square button of the date field that shows a symbol alone.
T.AbstractButton {
    id: root

    required property string symbol
    required property string name
    // Whether the button is drawn when the pointer and the focus are elsewhere.
    property bool flat: false

    implicitWidth: root.implicitHeight
    implicitHeight: metrics.height + 2 * Theme.controlPadding
    Accessible.role: Accessible.Button
    Accessible.name: root.name
    Accessible.onPressAction: {
        if (root.enabled && root.visible)
            root.clicked();
    }

    FontMetrics {
        id: metrics

        font.pixelSize: Theme.bodySize
    }

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: root.symbol
        }
    }

    background: Rectangle {
        radius: Theme.controlRadius
        color: {
            if (root.down)
                return Theme.buttonPressed;
            if (root.hovered)
                return Theme.buttonHovered;
            return root.flat ? "transparent" : Theme.button;
        }
        border.width: root.visualFocus ? Theme.focusWidth : root.flat ? 0 : 1
        border.color: root.visualFocus ? Theme.focusRing : Theme.border
    }
}
