import QtQuick
import Tavlo

// A row of the post list: a card between the window's edges. The list places the row; the card
// arrives in it.
FocusScope {
    id: root

    required property int index
    required property var post
    required property string title
    required property string description
    required property string permalink
    required property string dateText
    // The card's store.
    property alias viewModel: card.viewModel
    // Whether it is the row that Tab leads to.
    property bool current: false
    property bool focusShown: false
    // Whether a change of the post is shown as a movement.
    property bool animated: false

    // How far the card stands below the row's place.
    property real shift: 0

    signal focusedByTab
    signal menuRequested(real x, real y, bool byKey)

    // Brings the card up from its own height below its place, while it fades in.
    function arrive(): void {
        arrival.restart();
    }

    // Lets it go down by its own height, while it fades out.
    function leave(): void {
        departure.restart();
    }

    implicitHeight: card.height
    // A leaving row takes no input.
    enabled: root.index >= 0
    // An arriving card comes up from behind the others.
    z: arrival.running ? -1 : 0

    PostCardView {
        id: card

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: Theme.padding
        anchors.rightMargin: Theme.padding
        focus: true
        activeFocusOnTab: root.current || card.activeFocus
        post: root.post
        title: root.title
        description: root.description
        permalink: root.permalink
        dateText: root.dateText
        focusShown: root.focusShown
        animated: root.animated
        transform: Translate {
            y: root.shift
        }
        onVisualFocusChanged: {
            // Focus that only comes back, after a sheet, moves nothing.
            if (card.visualFocus && card.focusReason !== Qt.ShortcutFocusReason)
                root.focusedByTab();
        }
        onMenuRequested: (x, y, byKey) => root.menuRequested(card.x + x, y, byKey)
    }

    ParallelAnimation {
        id: arrival

        EasedAnimation {
            target: card
            property: "opacity"
            from: 0
            to: 1
        }

        EasedAnimation {
            target: root
            property: "shift"
            from: card.height
            to: 0
        }
    }

    ParallelAnimation {
        id: departure

        EasedAnimation {
            target: card
            property: "opacity"
            to: 0
        }

        EasedAnimation {
            target: root
            property: "shift"
            to: card.height
        }
    }
}
