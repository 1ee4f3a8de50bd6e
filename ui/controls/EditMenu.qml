import QtQuick
import Tavlo

// The editing commands of a text field or text area.
AppMenu {
    id: root

    // A TextField or TextArea. The two have no type in common that has their editing functions.
    required property var field

    readonly property bool hasSelection: root.field.selectionStart !== root.field.selectionEnd

    // Opens the menu for a secondary click. Outside the selection, the cursor comes along.
    function openAtPointer(x: real, y: real): void {
        root.field.forceActiveFocus(Qt.MouseFocusReason);
        const position = root.field.positionAt(x, y);
        if (!root.hasSelection || position < root.field.selectionStart || position > root.field.selectionEnd)
            root.field.cursorPosition = position;
        root.openAt(root.field, x, y, false);
    }

    // Opens the menu for a long press, which has nothing but a word to select before.
    function openAtFinger(x: real, y: real): void {
        root.field.forceActiveFocus(Qt.MouseFocusReason);
        root.field.cursorPosition = root.field.positionAt(x, y);
        root.field.selectWord();
        root.openAt(root.field, x, y, false);
    }

    // Opens the menu for the menu key, below the cursor.
    function openAtCursor(): void {
        const cursor = root.field.cursorRectangle;
        root.openAt(root.field, cursor.x, cursor.y + cursor.height, true);
    }

    objectName: "editMenu"

    AppMenuItem {
        objectName: "undoItem"
        text: qsTr("Undo")
        enabled: root.field.canUndo
        onTriggered: root.field.undo()
    }

    AppMenuItem {
        objectName: "redoItem"
        text: qsTr("Redo")
        enabled: root.field.canRedo
        onTriggered: root.field.redo()
    }

    AppMenuSeparator {
    }

    AppMenuItem {
        objectName: "cutItem"
        text: qsTr("Cut")
        enabled: root.hasSelection
        onTriggered: root.field.cut()
    }

    AppMenuItem {
        objectName: "copyItem"
        text: qsTr("Copy")
        enabled: root.hasSelection
        onTriggered: root.field.copy()
    }

    AppMenuItem {
        objectName: "pasteItem"
        text: qsTr("Paste")
        enabled: root.field.canPaste
        onTriggered: root.field.paste()
    }

    AppMenuSeparator {
    }

    AppMenuItem {
        objectName: "selectAllItem"
        text: qsTr("Select All")
        enabled: root.field.length > 0
        onTriggered: root.field.selectAll()
    }
}
