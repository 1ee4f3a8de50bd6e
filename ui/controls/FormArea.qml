import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Tavlo

// A form's rows, each a label and its field, or a field alone. Where they need more room than there
// is, they scroll, and what has the focus comes into sight.
Flickable {
    id: root

    default property alias rows: grid.data

    // Of the grid: two, or one where the labels stand above their fields.
    readonly property alias columns: grid.columns
    readonly property bool rowFills: Array.from(grid.children).some(row => row.Layout.fillHeight)
    readonly property real widestLabel: {
        const labels = Array.from(grid.children).filter(row => row as FormLabel);
        return Math.max(0, ...labels.map(label => label.implicitWidth));
    }
    readonly property Item focusItem: root.Window.activeFocusItem
    // The field that has the focus, where it is higher than the view.
    readonly property MultiLineField highField: {
        const field = root.rowOf(root.focusItem) as MultiLineField;
        return field && field.height > root.height ? field : null;
    }

    // The row of the grid that an item is in; null for an item elsewhere.
    function rowOf(item: Item): Item {
        while (item && item.parent !== grid)
            item = item.parent;
        return item;
    }

    function reveal(top: real, bottom: real): void {
        if (top < root.contentY)
            root.contentY = Math.max(0, top - Theme.padding);
        else if (bottom > root.contentY + root.height)
            root.contentY = Math.min(root.contentHeight - root.height, bottom + Theme.padding - root.height);
    }

    // Of a field that is higher than the view, the line with the cursor.
    function revealFocus(): void {
        const row = root.rowOf(root.focusItem);
        if (row && row === root.highField)
            root.revealCursor();
        else if (row)
            root.reveal(root.topOf(row), row.y + row.height);
    }

    // Where a field begins: with the label above it, where both are in sight at once.
    function topOf(row: Item): real {
        const before = grid.children[Array.from(grid.children).indexOf(row) - 1] as FormLabel;
        const fits = before?.above && row.y + row.height - before.y <= root.height;
        return fits ? before.y : row.y;
    }

    function revealCursor(): void {
        const text = root.highField.textArea;
        const line = text.mapToItem(grid, text.cursorRectangle);
        root.reveal(line.top, line.bottom);
    }

    implicitHeight: grid.implicitHeight
    contentWidth: root.width
    contentHeight: Math.max(root.height, grid.implicitHeight)
    boundsBehavior: Flickable.StopAtBounds
    interactive: root.contentHeight > root.height
    clip: true

    onFocusItemChanged: root.revealFocus()

    T.ScrollBar.vertical: ScrollIndicatorBar {
        id: bar
    }

    GridLayout {
        id: grid

        // The bar stands beside the fields, not on them.
        x: root.interactive && bar.mirrored ? bar.width : 0
        width: root.width - (root.interactive ? bar.width : 0)
        height: root.rowFills ? root.contentHeight : implicitHeight
        // A field beside its label is to have room for a few words.
        columns: root.width - root.widestLabel - columnSpacing < 12 * Theme.bodySize ? 1 : 2
        columnSpacing: Theme.padding
        rowSpacing: grid.columns === 1 ? Theme.spacing : Theme.padding
    }

    // The form goes on beyond these edges.
    EdgeFade {
        parent: root
        visible: !root.atYBeginning
        x: grid.x
        width: grid.width
        height: Theme.padding
        ground: Theme.surface
        edge: Qt.TopEdge
    }

    EdgeFade {
        parent: root
        visible: !root.atYEnd
        x: grid.x
        y: root.height - height
        width: grid.width
        height: Theme.padding
        ground: Theme.surface
        edge: Qt.BottomEdge
    }

    Connections {
        function onCursorRectangleChanged(): void {
            root.revealFocus();
        }

        target: root.highField ? root.highField.textArea : null
    }
}
