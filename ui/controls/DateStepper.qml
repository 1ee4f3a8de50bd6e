import QtQuick
import Tavlo

// Two small buttons, one above the other, that step a number up and down with the mouse. The
// keyboard and assistive tools step the number itself, so the buttons are no stop on their way.
Item {
    id: root

    signal stepped(int by)

    implicitWidth: Math.ceil(Theme.bodySize * 1.5)
    implicitHeight: Math.ceil(Theme.bodySize * 2.4)

    DateStepperHalf {
        anchors.top: parent.top
        width: root.width
        height: Math.floor(root.height / 2)
        symbol: "chevron.up"
        onClicked: root.stepped(1)
    }

    DateStepperHalf {
        anchors.bottom: parent.bottom
        width: root.width
        height: Math.floor(root.height / 2)
        symbol: "chevron.down"
        onClicked: root.stepped(-1)
    }
}
