import QtQuick
import Tavlo

// Opens the editing menu of the field that it lies on: by a secondary click, which goes here and
// not to the field, by a long press of a finger or pen, and by the keys that the field hands
// over. The menu is made when it is first asked for.
MouseArea {
    id: root

    required property var field

    // Whether a finger or pen has been on the field for so long that it asks for the menu.
    property bool held: false
    property point place
    readonly property bool opened: loader.item !== null && (loader.item as EditMenu).visible

    function takeKey(event: var): void {
        const asked = event.key === Qt.Key_Menu || (event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier);
        if (!asked)
            return;
        event.accepted = true;
        root.menu().openAtCursor();
    }

    function takeLongPress(): void {
        if (root.held)
            root.menu().openAtFinger(root.place.x, root.place.y);
        root.held = false;
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

    // On an item of its own: this one would take the buttons that its handlers take.
    Item {
        anchors.fill: parent

        TapHandler {
            id: tap

            acceptedDevices: PointerDevice.TouchScreen | PointerDevice.Stylus
            onLongPressed: {
                root.held = true;
                root.place = tap.point.position;
            }
            onCanceled: root.held = false
            onPressedChanged: {
                if (!tap.pressed)
                    lifted.restart();
            }
        }
    }

    // The field, and the handler's word of a finger that has moved away, come first.
    Timer {
        id: lifted

        interval: 0
        onTriggered: root.takeLongPress()
    }

    Loader {
        id: loader
    }
}
