import QtQuick
import QtQuick.Templates as T
import Tavlo

// A menu that floats over the window, for AppMenuItem and AppMenuSeparator. It goes at once: a menu
// that faded out would keep the keys of the window behind from working until it has gone.
T.Menu {
    id: root

    readonly property real widestItem: {
        let width = 0;
        for (let i = 0; i < root.count; ++i)
            width = Math.max(width, root.itemAt(i).implicitWidth);
        return width;
    }

    // Opens the menu at a place of an item: beside it, on the side that reading goes to. Opened by
    // a key, it starts with its first item.
    function openAt(item: Item, x: real, y: real, byKey: bool): void {
        root.popup(item, item.LayoutMirroring.enabled ? x - root.implicitWidth : x, y);
        if (byKey)
            root.moveToFirst();
    }

    function moveToFirst(): void {
        for (let i = 0; i < root.count; ++i) {
            if (root.itemAt(i).enabled && root.itemAt(i) as T.MenuItem) {
                root.currentIndex = i;
                return;
            }
        }
    }

    implicitWidth: Math.max(10 * Theme.bodySize, root.widestItem + leftPadding + rightPadding)
    implicitHeight: contentHeight + topPadding + bottomPadding
    margins: 8
    padding: 5
    modal: true
    dim: false

    contentItem: ListView {
        implicitHeight: contentHeight
        model: root.contentModel
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive
        currentIndex: root.currentIndex
    }

    background: FloatingGround {
    }

    enter: FadeIn {
        duration: Theme.hoverDuration
    }
}
