import QtQuick
import Tavlo

// The editing commands of a date as a whole.
AppMenu {
    id: root

    required property PostDate postDate

    objectName: "dateMenu"

    AppMenuItem {
        objectName: "undoItem"
        text: qsTr("Undo")
        enabled: root.postDate.changed
        onTriggered: root.postDate.undo()
    }

    AppMenuSeparator {
    }

    AppMenuItem {
        objectName: "copyItem"
        text: qsTr("Copy")
        enabled: root.postDate.dayInWords !== ""
        onTriggered: root.postDate.copy()
    }

    AppMenuItem {
        objectName: "pasteItem"
        text: qsTr("Paste")
        onTriggered: root.postDate.paste()
    }
}
