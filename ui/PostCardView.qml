import QtQuick
import QtQuick.Templates as T
import Tavlo

// One post as a card. It has no buttons: a secondary click or the menu key asks for the menu with
// its two commands.
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
    required property BlogViewModel viewModel
    property bool focusShown: root.visualFocus
    // Whether a change of the post is shown as a movement.
    property bool animated: false

    signal menuRequested(real x, real y, bool byKey)

    function requestMenuByKey(): void {
        const edge = 2 * Theme.padding;
        root.menuRequested(root.mirrored ? root.width - edge : edge, edge, true);
    }

    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: Theme.padding

    Accessible.role: Accessible.ListItem
    // A control of this kind forgets the role when assistive tools are there, or come.
    Accessible.onRoleChanged: root.Accessible.role = Accessible.ListItem
    Accessible.name: root.title
    Accessible.description: root.description
    Accessible.focusable: true
    // Disabled, it lies behind a sheet.
    Accessible.onPressAction: {
        if (root.enabled)
            root.requestMenuByKey();
    }

    Keys.onPressed: event => {
        const shiftF10 = event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier;
        event.accepted = event.key === Qt.Key_Menu || shiftF10;
        if (event.accepted)
            root.requestMenuByKey();
    }

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
}
