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
    // Whether the change that is under way may take the focus from a card.
    property bool hadFocus: false
    readonly property alias menuShown: menu.visible
    // Where the view was before the change that is under way.
    property real placeBefore: 0
    // Room below the last card in which the view comes down when cards have gone.
    property real slack: 0

    // The card that had the focus has gone, and there is no other.
    signal focusLeft

    function clamped(position: real): real {
        const top = root.originY - root.topMargin;
        const bottom = root.originY + root.contentHeight + Theme.padding - root.height;
        return Math.max(top, Math.min(position, bottom));
    }

    // Moves from one place to another. A way longer than a page is cut to a page.
    function scrollBetween(start: real, end: real): void {
        const target = root.clamped(end);
        scroll.stop();
        root.cancelFlick();
        root.contentY = Math.max(target - root.height, Math.min(start, target + root.height));
        scroll.to = target;
        scroll.start();
    }

    // Scrolls the shortest way that brings a row and the default padding around it into sight.
    function bringIntoSight(row: int): void {
        const start = root.contentY;
        if (!root.itemAtIndex(row))
            root.positionViewAtIndex(row, ListView.Contain);
        const item = root.itemAtIndex(row);
        const top = item.y - Theme.padding;
        const bottom = item.y + item.height + Theme.padding - root.height;
        if (top < root.contentY || bottom > root.contentY || start !== root.contentY)
            root.scrollBetween(start, top < root.contentY ? top : Math.min(top, Math.max(bottom, root.contentY)));
    }

    function focusRow(row: int): void {
        root.usedByKeys = true;
        root.currentIndex = Math.max(0, Math.min(row, root.count - 1));
        root.bringIntoSight(root.currentIndex);
    }

    // Goes to the card before or after. One that is higher than the view is scrolled through first.
    function stepBy(rows: int): void {
        const item = root.currentItem;
        const hiddenAbove = root.contentY - item.y + Theme.padding;
        const hiddenBelow = item.y + item.height + Theme.padding - root.contentY - root.height;
        const hidden = rows < 0 ? hiddenAbove : hiddenBelow;
        const inSight = hiddenAbove < item.height && hiddenBelow < item.height;
        if (item.height > root.height && inSight && hidden > 1)
            root.scrollBetween(root.contentY, root.contentY + rows * Math.min(hidden, root.height / 2));
        else
            root.focusRow(root.currentIndex + rows);
    }

    // Scrolls by pages and goes to the first card that is then in sight, at an end to the last.
    function pageBy(pages: int): void {
        root.usedByKeys = true;
        const start = scroll.running ? scroll.to : root.contentY;
        const page = root.height - 2 * Theme.padding;
        root.contentY = root.clamped(start + pages * page);
        root.forceLayout();
        const end = root.clamped(root.contentY);
        if (end === start)
            root.currentIndex = pages < 0 ? 0 : root.count - 1;
        else
            root.currentIndex = root.rowBelow(end);
        root.scrollBetween(start, end);
    }

    // The first row that begins below a place, or the row that is there.
    function rowBelow(position: real): int {
        const row = root.indexAt(root.width / 2, position + root.spacing);
        if (row < 0)
            return root.indexAt(root.width / 2, position + Theme.padding + root.spacing);
        const item = root.itemAtIndex(row);
        const next = root.itemAtIndex(row + 1);
        return item.y < position && next && next.y < position + root.height ? row + 1 : row;
    }

    function goToEnd(atStart: bool): void {
        root.usedByKeys = true;
        const start = root.contentY;
        root.currentIndex = atStart ? 0 : root.count - 1;
        if (atStart)
            root.positionViewAtBeginning();
        else
            root.positionViewAtEnd();
        root.scrollBetween(start, atStart ? -Infinity : Infinity);
    }

    function openMenu(row: PostRow, x: real, y: real, byKey: bool): void {
        root.usedByKeys = byKey;
        root.currentIndex = row.index;
        row.forceActiveFocus(Qt.OtherFocusReason);
        menu.post = row.post;
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
        root.slack = root.contentHeight + root.height;
    }

    // Shows a change of the rows as one movement.
    function showChange(insertedRow: int, replaced: bool): void {
        root.forceLayout();
        if (replaced && root.count > 0) {
            scroll.stop();
            root.contentY = root.originY - root.topMargin;
        } else if (insertedRow >= 0) {
            root.bringIntoSight(insertedRow);
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
        const excess = root.contentY - root.clamped(root.contentY);
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
            root.focusLeft();
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
    onMovementStarted: scroll.stop()

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
        onPressedChanged: scroll.stop()
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

        interval: Theme.duration + 100
    }

    EasedAnimation {
        id: settling

        target: root
        property: "slack"
        to: 0
    }

    EasedAnimation {
        id: scroll

        target: root
        property: "contentY"
    }

    // One menu for all cards. It holds a copy of the post: a card may go while the menu is open.
    AppMenu {
        id: menu

        property var post

        objectName: "cardMenu"

        AppMenuItem {
            text: qsTr("Edit Post")
            onTriggered: PostActions.edit(menu.post)
        }

        AppMenuItem {
            text: qsTr("Delete Post")
            onTriggered: PostActions.remove(root.viewModel, menu.post)
        }
    }
}
