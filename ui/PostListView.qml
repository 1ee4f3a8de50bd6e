import QtQuick
import QtQuick.Controls.Basic
import Tavlo

// The posts as a list of cards, in the store's order. Only the cards in sight exist.
ListView {
    id: root

    required property BlogViewModel viewModel
    // Whether the keyboard was used last: only then the focused card shows a ring.
    property bool keyboardUsed: false
    // Whether the list had the focus before the change that is under way.
    property bool hadFocus: false

    // The card that had the focus has gone, and there is none left.
    signal focusLeft

    function scrollTo(position: real): void {
        scroll.stop();
        const top = root.originY - root.topMargin;
        const bottom = root.originY + root.contentHeight + root.bottomMargin - root.height;
        scroll.to = Math.max(top, Math.min(position, bottom));
        scroll.start();
    }

    // Scrolls to a row, with the default padding around it, the shortest way. A way longer than a
    // page is cut to a page.
    function bringIntoSight(row: int): void {
        root.forceLayout();
        const start = root.contentY;
        if (!root.itemAtIndex(row))
            root.positionViewAtIndex(row, ListView.Contain);
        const item = root.itemAtIndex(row);
        if (!item)
            return;
        const top = item.y - Theme.padding;
        const bottom = item.y + item.height + Theme.padding - root.height;
        let position = root.contentY;
        if (top < position)
            position = top;
        else if (bottom > position)
            position = Math.min(top, bottom);
        root.contentY = Math.max(position - root.height, Math.min(start, position + root.height));
        root.scrollTo(position);
    }

    function openMenu(row: PostRow, x: real, y: real): void {
        root.currentIndex = row.index;
        menu.post = row.post;
        menu.popup(row, x, y);
    }

    model: posts
    spacing: 12
    topMargin: Theme.padding
    bottomMargin: Theme.padding
    boundsBehavior: Flickable.StopAtBounds
    highlightFollowsCurrentItem: false
    activeFocusOnTab: false

    Accessible.role: Accessible.List
    Accessible.name: qsTr("Posts")

    delegate: PostRow {
        id: row

        width: ListView.view.width
        viewModel: root.viewModel
        animated: row.y + row.height > root.contentY && row.y < root.contentY + root.height
        focusShown: row.activeFocus && root.keyboardUsed
        onMenuRequested: (x, y) => root.openMenu(row, x, y)
        ListView.onAdd: row.arrive()
    }

    displaced: Transition {
        NumberAnimation {
            property: "y"
            duration: Theme.duration
            easing.type: Easing.Bezier
            easing.bezierCurve: Theme.easeInOut
        }
    }

    remove: Transition {
        id: departure

        PropertyAction {
            property: "enabled"
            value: false
        }

        PropertyAction {
            property: "z"
            value: -1
        }

        ParallelAnimation {
            NumberAnimation {
                property: "opacity"
                to: 0
                duration: Theme.duration
                easing.type: Easing.Bezier
                easing.bezierCurve: Theme.easeInOut
            }

            NumberAnimation {
                property: "y"
                to: departure.ViewTransition.item.y + departure.ViewTransition.item.height
                duration: Theme.duration
                easing.type: Easing.Bezier
                easing.bezierCurve: Theme.easeInOut
            }
        }
    }

    ScrollBar.vertical: ScrollBar {}

    PostListModel {
        id: posts

        viewModel: root.viewModel
        onChanged: insertedRow => {
            if (insertedRow >= 0)
                root.bringIntoSight(insertedRow);
        }
    }

    NumberAnimation {
        id: scroll

        target: root
        property: "contentY"
        duration: Theme.duration
        easing.type: Easing.Bezier
        easing.bezierCurve: Theme.easeInOut
    }

    Menu {
        id: menu

        property blogPost post

        MenuItem {
            text: qsTr("Edit Post")
            onTriggered: PostActions.edit(menu.post)
        }

        MenuItem {
            text: qsTr("Delete Post")
            onTriggered: PostActions.remove(root.viewModel, menu.post)
        }
    }
}
