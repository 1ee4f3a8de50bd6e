import QtQuick
import Tavlo

// Makes the editing menu of a field when it is first asked for. The field hands its secondary
// clicks and its keys over.
Loader {
    id: root

    required property var field

    readonly property bool opened: root.item !== null && (root.item as EditMenu).visible

    function takePress(event: var): void {
        if (event.button !== Qt.RightButton)
            return;
        root.active = true;
        (root.item as EditMenu).openAtPointer(event.x, event.y);
    }

    function takeKey(event: var): void {
        const asked = event.key === Qt.Key_Menu || (event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier);
        if (!asked)
            return;
        event.accepted = true;
        root.active = true;
        (root.item as EditMenu).openAtCursor();
    }

    active: false
    sourceComponent: EditMenu {
        field: root.field
    }
}
