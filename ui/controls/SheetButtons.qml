import QtQuick
import QtQuick.Layouts
import Tavlo

// The buttons that end a form: Cancel, then the form's own action.
RowLayout {
    id: root

    // The action's text, and the name under which its button is found.
    required property string action
    required property string actionName
    property bool actionEnabled: true
    // Whether the buttons stand at the two ends of the row, or together.
    property bool apart: true

    signal cancelled
    signal accepted

    spacing: Theme.spacing

    PushButton {
        objectName: "cancelButton"
        text: qsTr("Cancel")
        onClicked: root.cancelled()
    }

    Item {
        visible: root.apart
        Layout.fillWidth: true
    }

    PushButton {
        objectName: root.actionName
        text: root.action
        prominent: true
        enabled: root.actionEnabled
        onClicked: root.accepted()
    }
}
