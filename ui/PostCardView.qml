import QtQuick
import QtQuick.Templates as T
import Tavlo

// One post as a card. It has no buttons: a secondary click, a long touch or a key asks for the menu
// with its two commands.
T.Control {
    id: root

    // The record, a blogPost, for the commands.
    required property var post
    // What is shown of it. QML takes two posts for one when they are equal; texts it compares
    // character by character.
    required property string title
    required property string description
    required property string permalink
    required property string dateText
    // The store that "Delete Post" is for.
    required property BlogViewModel viewModel
    property bool focusShown: root.visualFocus
    // Whether a change of the post is shown as a movement.
    property bool animated: false
    // The key that is held down to ask for the menu, or 0.
    property int heldKey: 0

    signal menuRequested(real x, real y, bool byKey)

    function requestMenuByKey(): void {
        const edge = 2 * Theme.padding;
        root.menuRequested(root.mirrored ? root.width - edge : edge, edge, true);
    }

    // Those of the texts that are there, one below the other.
    function linesOf(texts: var): string {
        return texts.filter(text => text.length > 0).join("\n");
    }

    // Whether a key presses what has the focus.
    function presses(event: var): bool {
        const plain = event.modifiers === Qt.NoModifier || event.modifiers === Qt.KeypadModifier;
        return plain && [Qt.Key_Space, Qt.Key_Return, Qt.Key_Enter].includes(event.key);
    }

    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: Theme.padding

    Accessible.role: Accessible.ListItem
    // A control of this kind forgets the role when assistive tools are there, or come.
    Accessible.onRoleChanged: root.Accessible.role = Accessible.ListItem
    Accessible.name: root.title
    Accessible.description: root.linesOf([root.description, root.dateText, root.permalink])
    Accessible.focusable: true
    // Disabled, it lies behind a sheet.
    Accessible.onPressAction: {
        if (root.enabled)
            root.requestMenuByKey();
    }

    Keys.onPressed: event => {
        const shiftF10 = event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier;
        const asksForMenu = event.key === Qt.Key_Menu || shiftF10;
        const presses = root.presses(event);
        event.accepted = asksForMenu || presses;
        if (asksForMenu)
            root.requestMenuByKey();
        else if (presses && !event.isAutoRepeat)
            root.heldKey = event.key;
    }
    // Pressing takes place when the key comes up: held down, it would go on to press a command.
    Keys.onReleased: event => {
        event.accepted = root.heldKey !== 0 && event.key === root.heldKey;
        if (event.accepted && !event.isAutoRepeat) {
            root.heldKey = 0;
            root.requestMenuByKey();
        }
    }
    onActiveFocusChanged: root.heldKey = 0

    background: Rectangle {
        radius: Theme.cardRadius
        color: Theme.surface
        border.width: Theme.dark ? 1 : 0
        border.color: Theme.separator

        CardShadow {
            z: -1
        }

        FocusRing {
            objectName: "focusRing"
            visible: root.focusShown
            innerRadius: Theme.cardRadius
            gap: 0
        }
    }

    contentItem: PostCardContent {
        title: root.title
        description: root.description
        permalink: root.permalink
        dateText: root.dateText
        animated: root.animated
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.RightButton
        onPressed: mouse => root.menuRequested(mouse.x, mouse.y, false)
    }

    TapHandler {
        acceptedDevices: PointerDevice.TouchScreen | PointerDevice.Stylus
        onLongPressed: root.menuRequested(point.position.x, point.position.y, false)
    }
}
