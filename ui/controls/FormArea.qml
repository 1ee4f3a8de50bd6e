import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Tavlo

// A form's rows, each a label and its field. Where they need more room than there is, they scroll,
// and the field that has the focus comes into sight.
Flickable {
    id: root

    default property alias rows: grid.data

    function reveal(item: Item): void {
        const top = item.mapToItem(grid, 0, 0).y;
        if (top < root.contentY)
            root.contentY = Math.max(0, top - Theme.padding);
        else if (top + item.height > root.contentY + root.height)
            root.contentY = Math.min(root.contentHeight - root.height, top + item.height + Theme.padding - root.height);
    }

    function revealFocus(): void {
        const focused = root.Window.activeFocusItem;
        for (let item = focused; item; item = item.parent) {
            if (item === grid) {
                root.reveal(focused);
                return;
            }
        }
    }

    implicitHeight: grid.implicitHeight
    contentWidth: root.width
    contentHeight: Math.max(root.height, grid.implicitHeight)
    boundsBehavior: Flickable.StopAtBounds
    interactive: root.contentHeight > root.height
    clip: true

    T.ScrollBar.vertical: ScrollIndicatorBar {
        id: bar
    }

    GridLayout {
        id: grid

        // The bar stands beside the fields, not on them.
        x: root.interactive && bar.mirrored ? bar.width : 0
        width: root.width - (root.interactive ? bar.width : 0)
        height: root.contentHeight
        columns: 2
        columnSpacing: Theme.padding
        rowSpacing: Theme.padding
    }

    Connections {
        function onActiveFocusItemChanged(): void {
            root.revealFocus();
        }

        target: root.Window.window
    }
}
