import QtQuick
import Tavlo

// Opens the editing menu of the field that it lies on: by a secondary click, which goes here and
// not to the field, and by the keys that the field hands over. The menu is made when it is first
// asked for.
MouseArea {
    id: root

    required property var field

    readonly property bool opened: loader.item !== null && (loader.item as EditMenu).visible

    function takeKey(event: var): void {
        const asked = event.key === Qt.Key_Menu || (event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier);
        if (!asked)
            return;
        event.accepted = true;
        root.menu().openAtCursor();
    }

    function menu(): EditMenu {
        if (loader.item === null) {
            loader.setSource("EditMenu.qml", {
                    "field": root.field
                });
        }
        return loader.item as EditMenu;
    }

    anchors.fill: parent
    acceptedButtons: Qt.RightButton

    onPressed: event => root.menu().openAtPointer(event.x, event.y)

    Loader {
        id: loader
    }
}
