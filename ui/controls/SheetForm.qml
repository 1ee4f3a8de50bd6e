import QtQuick
import QtQuick.Layouts
import Tavlo

// What the forms of the sheets have in common: a heading, and rows below it.
FocusScope {
    id: root

    required property string title
    // Whether the owner shows the form. False while it leaves, when it takes no input any more.
    property bool isPresented: true

    property alias spacing: column.spacing
    default property alias rows: column.data

    // The owner is to set its isPresented to false.
    signal dismissed
    // Return or Enter, that no control has taken for itself. A form with a default action does it.
    signal returnPressed

    function cancel(): void {
        if (root.isPresented)
            root.dismissed();
    }

    // With a modifier, it is another key. The keypad's says by one where it is.
    function takeReturn(event: var): void {
        event.accepted = event.modifiers === Qt.NoModifier || event.modifiers === Qt.KeypadModifier;
        if (event.accepted)
            root.returnPressed();
    }

    implicitHeight: column.implicitHeight + 2 * Theme.padding
    focus: true
    Keys.onReturnPressed: event => root.takeReturn(event)
    Keys.onEnterPressed: event => root.takeReturn(event)

    ColumnLayout {
        id: column

        anchors.fill: parent
        anchors.margins: Theme.padding
        spacing: 20

        SheetTitle {
            text: root.title
        }
    }
}
