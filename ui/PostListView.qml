import QtQuick
import QtQuick.Templates as T
import Tavlo

// The posts as a list of cards, in the store's order. Only the cards in and near sight exist.
ListView {
    id: root

    required property BlogViewModel viewModel
    readonly property bool empty: posts.empty
    // Whether the last change may still be moving cards.
    readonly property alias changing: change.running
    // Whether the list was last used by keys: only then does the focused card show a ring.
    property bool usedByKeys: false
    // Whether the focus was here, or in the menu, before the change that is under way.
    property bool hadFocus: false
    readonly property alias menuShown: menu.visible
    // Where the view was before the change that is under way.
    property real placeBefore: 0
    // Room below the last card, in which the view stays where it is while rows change, and comes
    // down when the last ones have gone.
    property real slack: 0

    // The card that had the focus has gone, and there is no other. The reason is one that shows
    // where the focus goes, if it was shown here.
    signal focusLeft(int reason)

    function focusRow(row: int): void {
        root.usedByKeys = true;
        root.currentIndex = Math.max(0, Math.min(row, root.count - 1));
        scroller.bringIntoSight(root.currentIndex);
    }

    // Goes to the card before or after. One that is higher than the view is scrolled through first.
    function stepBy(rows: int): void {
        if (!scroller.readOn(root.currentItem, rows))
            root.focusRow(root.currentIndex + rows);
    }

    function pageBy(pages: int): void {
        root.usedByKeys = true;
        root.currentIndex = scroller.pageBy(pages);
    }

    function goToEnd(atStart: bool): void {
        root.usedByKeys = true;
        root.currentIndex = atStart ? 0 : root.count - 1;
        scroller.goToEnd(atStart);
    }

    function openMenu(row: PostRow, x: real, y: real, byKey: bool): void {
        root.usedByKeys = byKey;
        root.currentIndex = row.index;
        row.forceActiveFocus(Qt.OtherFocusReason);
        menu.post = row.post;
        menu.viewModel = row.viewModel;
        // The card may go while the menu is open, the list does not.
        const place = row.mapToItem(root, x, y);
        menu.openAt(root, place.x, place.y, byKey);
    }

    // The card at a place or, where there is a space between two, the one below it.
    function cardAt(place: real): Item {
        const card = root.itemAt(root.width / 2, place);
        if (card)
            return card;
        return root.itemAt(root.width / 2, place + root.spacing);
    }

    // Keeps the reader's place when rows above it change their heights.
    function keepPlace(): void {
        const first = root.cardAt(root.contentY);
        if (!first)
            return;
        const before = first.y;
        root.forceLayout();
        root.contentY += first.y - before;
    }

    function prepareForChange(): void {
        root.hadFocus = root.activeFocus || menu.visible;
        root.placeBefore = root.contentY;
        change.restart();
        settling.stop();
        // More than enough for any place: it is taken back to what is needed when the rows are there.
        root.slack = root.contentHeight + root.height;
    }

    // Shows a change of the rows as one movement.
    function showChange(insertedRow: int, replaced: bool): void {
        root.forceLayout();
        if (replaced && root.count > 0) {
            scroller.stop();
            root.contentY = root.originY - root.topMargin;
        } else if (insertedRow >= 0) {
            scroller.bringIntoSight(insertedRow);
        }
        root.settle();
        root.moveCards(replaced && root.count > 0 ? root.contentY - root.placeBefore : 0);
        if (root.hadFocus)
            root.keepFocus();
        else if (insertedRow >= 0)
            root.currentIndex = insertedRow;
    }

    // Where cards have gone from the end, the view comes down to the last one that is left.
    function settle(): void {
        const excess = root.contentY - scroller.clamped(root.contentY);
        root.slack = Math.max(0, excess);
        if (excess > 0)
            settling.start();
    }

    // Lets the new cards in sight arrive. The leaving ones keep their place on screen.
    function moveCards(jump: real): void {
        const items = root.contentItem.children;
        for (let i = 0; i < items.length; ++i) {
            const row = items[i] as PostRow;
            if (!row)
                continue;
            if (row.index < 0)
                row.shift += jump;
            else if (posts.isNew(row.index))
                row.arrive();
        }
    }

    function keepFocus(): void {
        if (root.count === 0) {
            root.focusLeft(root.usedByKeys ? Qt.ShortcutFocusReason : Qt.OtherFocusReason);
            return;
        }
        if (root.currentIndex < 0)
            root.currentIndex = 0;
        if (!menu.visible)
            root.currentItem.forceActiveFocus(Qt.OtherFocusReason);
    }

    model: posts
    spacing: 12
    topMargin: Theme.padding
    bottomMargin: Theme.padding + root.slack
    cacheBuffer: Math.max(0, root.height / 2)
    boundsBehavior: Flickable.StopAtBounds
    keyNavigationEnabled: false
    highlightFollowsCurrentItem: false

    Accessible.role: Accessible.List
    Accessible.name: qsTr("Posts")

    Keys.onUpPressed: root.stepBy(-1)
    Keys.onDownPressed: root.stepBy(1)
    Keys.onPressed: event => {
        if (event.key === Qt.Key_PageUp)
            root.pageBy(-1);
        else if (event.key === Qt.Key_PageDown)
            root.pageBy(1);
        else if (event.key === Qt.Key_Home)
            root.goToEnd(true);
        else if (event.key === Qt.Key_End)
            root.goToEnd(false);
        else
            return;
        event.accepted = true;
    }
    onMovementStarted: scroller.stop()

    delegate: PostRow {
        id: row

        readonly property PostListView list: ListView.view as PostListView

        width: row.list.width
        viewModel: row.list.viewModel
        current: ListView.isCurrentItem
        animated: row.y + row.height > row.list.contentY && row.y < row.list.contentY + row.list.height
        focusShown: row.list.usedByKeys && (row.activeFocus || row.current && row.list.menuShown)
        onFocusedByTab: row.list.focusRow(row.index)
        // An empty list drops its rows at once, unless they hold on.
        ListView.delayRemove: row.list.empty && row.list.changing
        ListView.onRemove: {
            if (row.list.empty)
                row.leave();
        }
        onMenuRequested: (x, y, byKey) => row.list.openMenu(row, x, y, byKey)
    }

    displaced: Transition {
        EasedAnimation {
            property: "y"
        }
    }

    remove: Transition {
        id: departure

        PropertyAction {
            property: "z"
            value: -1
        }

        ParallelAnimation {
            EasedAnimation {
                property: "opacity"
                to: 0
            }

            EasedAnimation {
                property: "y"
                to: departure.ViewTransition.item.y + departure.ViewTransition.item.height
            }
        }
    }

    T.ScrollBar.vertical: ScrollIndicatorBar {
        onPressedChanged: scroller.stop()
    }

    PostListModel {
        id: posts

        viewModel: root.viewModel
        onDataChanged: root.keepPlace()
        onAboutToChange: root.prepareForChange()
        onChanged: (insertedRow, replaced) => root.showChange(insertedRow, replaced)
    }

    Timer {
        id: change

        // The cards begin to move with the next frame, and end with one.
        interval: Theme.duration + 100
    }

    EasedAnimation {
        id: settling

        target: root
        property: "slack"
        to: 0
    }

    ListScroller {
        id: scroller

        list: root
    }

    // One menu for all cards. It holds a copy of the post: a card may go while the menu is open.
    AppMenu {
        id: menu

        property var post
        property BlogViewModel viewModel

        objectName: "cardMenu"

        AppMenuItem {
            text: qsTr("Edit Post")
            onTriggered: PostActions.edit(menu.post)
        }

        AppMenuItem {
            text: qsTr("Delete Post")
            onTriggered: PostActions.remove(menu.viewModel, menu.post)
        }
    }
}
