import QtQuick
import Tavlo

// Scrolls a list of cards: always as a movement, and never beyond its ends.
QtObject {
    id: root

    required property ListView list

    readonly property EasedAnimation movement: EasedAnimation {
        target: root.list
        property: "contentY"
    }

    // The place nearest to one at which the view shows nothing but the list and its padding.
    function clamped(position: real): real {
        const top = root.list.originY - root.list.topMargin;
        const bottom = root.list.originY + root.list.contentHeight + Theme.padding - root.list.height;
        return Math.max(top, Math.min(position, bottom));
    }

    function stop(): void {
        root.movement.stop();
    }

    // Moves from one place to another. A way longer than a page is cut to a page.
    function scrollBetween(start: real, end: real): void {
        const target = root.clamped(end);
        root.movement.stop();
        root.list.cancelFlick();
        root.list.contentY = Math.max(target - root.list.height, Math.min(start, target + root.list.height));
        root.movement.to = target;
        root.movement.start();
    }

    // Scrolls the shortest way that brings a row and the default padding around it into sight.
    function bringIntoSight(row: int): void {
        const start = root.list.contentY;
        if (!root.list.itemAtIndex(row))
            root.list.positionViewAtIndex(row, ListView.Contain);
        const item = root.list.itemAtIndex(row);
        const top = item.y - Theme.padding;
        const bottom = item.y + item.height + Theme.padding - root.list.height;
        if (top < root.list.contentY || bottom > root.list.contentY || start !== root.list.contentY)
            root.scrollBetween(start, top < root.list.contentY ? top : Math.min(top, Math.max(bottom, root.list.contentY)));
    }

    // Scrolls on, up or down, through an item that is higher than the view. Tells whether there was
    // more of it that way.
    function readOn(item: Item, direction: int): bool {
        const hiddenAbove = root.list.contentY - item.y + Theme.padding;
        const hiddenBelow = item.y + item.height + Theme.padding - root.list.contentY - root.list.height;
        const hidden = direction < 0 ? hiddenAbove : hiddenBelow;
        const inSight = hiddenAbove < item.height && hiddenBelow < item.height;
        if (item.height <= root.list.height || !inSight || hidden <= 1)
            return false;
        root.scrollBetween(root.list.contentY, root.list.contentY + direction * Math.min(hidden, root.list.height / 2));
        return true;
    }

    // Scrolls by pages. Tells the first row that is then in sight, at an end the last one there.
    function pageBy(pages: int): int {
        const start = root.movement.running ? root.movement.to : root.list.contentY;
        const page = root.list.height - 2 * Theme.padding;
        root.list.contentY = root.clamped(start + pages * page);
        root.list.forceLayout();
        const end = root.clamped(root.list.contentY);
        let row = pages < 0 ? 0 : root.list.count - 1;
        if (end !== start)
            row = root.rowBelow(end);
        root.scrollBetween(start, end);
        return row;
    }

    // The first row that begins below a place, or the row that is there.
    function rowBelow(position: real): int {
        const middle = root.list.width / 2;
        const row = root.list.indexAt(middle, position + root.list.spacing);
        if (row < 0)
            return root.list.indexAt(middle, position + Theme.padding + root.list.spacing);
        const item = root.list.itemAtIndex(row);
        const next = root.list.itemAtIndex(row + 1);
        return item.y < position && next && next.y < position + root.list.height ? row + 1 : row;
    }

    function goToEnd(atStart: bool): void {
        const start = root.list.contentY;
        if (atStart)
            root.list.positionViewAtBeginning();
        else
            root.list.positionViewAtEnd();
        root.scrollBetween(start, atStart ? -Infinity : Infinity);
    }
}
