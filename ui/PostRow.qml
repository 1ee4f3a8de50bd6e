import QtQuick
import Tavlo

// A row of the post list: a card between the window's edges. The list places the row; the card
// arrives in it.
Item {
    id: root

    required property int index
    required property blogPost post
    required property string dateText
    required property BlogViewModel viewModel
    property bool focusShown: false
    property bool animated: false

    signal menuRequested(x: real, y: real)

    // Brings the card up from its own height below its place, while it fades in.
    function arrive(): void {
        card.opacity = 0;
        arrival.restart();
    }

    implicitHeight: card.height
    activeFocusOnTab: root.ListView.isCurrentItem

    Keys.onMenuPressed: root.menuRequested(card.x + Theme.padding, Theme.padding)

    PostCardView {
        id: card

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: Theme.padding
        anchors.rightMargin: Theme.padding
        height: card.implicitHeight
        post: root.post
        viewModel: root.viewModel
        dateText: root.dateText
        focusShown: root.focusShown
        animated: root.animated
        transform: Translate {
            id: rise
        }
        onMenuRequested: (x, y) => root.menuRequested(card.x + x, y)
    }

    ParallelAnimation {
        id: arrival

        NumberAnimation {
            target: card
            property: "opacity"
            from: 0
            to: 1
            duration: Theme.duration
            easing.type: Easing.Bezier
            easing.bezierCurve: Theme.easeInOut
        }

        NumberAnimation {
            target: rise
            property: "y"
            from: card.height
            to: 0
            duration: Theme.duration
            easing.type: Easing.Bezier
            easing.bezierCurve: Theme.easeInOut
        }
    }
}
