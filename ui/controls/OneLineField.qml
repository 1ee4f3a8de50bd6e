import QtQuick
import QtQuick.Templates as T
import Tavlo

// A field for one line of text. It keeps every character that it is given, line breaks too.
T.TextField {
    id: root

    // What the field is for. The form draws it; here it is the name for assistive tools.
    property string label: ""

    // Takes in what an input method has not committed yet.
    function commit(): void {
        if (root.activeFocus)
            Qt.inputMethod.commit();
    }

    implicitWidth: Math.max(contentWidth, placeholder.implicitWidth, 12 * Theme.bodySize) + leftPadding + rightPadding
    implicitHeight: Math.max(contentHeight, placeholder.implicitHeight) + topPadding + bottomPadding
    padding: Theme.controlPadding
    leftPadding: Theme.controlPadding + 3
    rightPadding: Theme.controlPadding + 3
    maximumLength: 2147483647
    selectByMouse: true
    clip: true
    color: root.enabled ? Theme.text : Theme.disabledText
    placeholderTextColor: Theme.placeholderText
    selectionColor: Theme.selection
    selectedTextColor: Theme.selectedText
    font.pixelSize: Theme.bodySize
    verticalAlignment: TextInput.AlignVCenter
    Accessible.role: Accessible.EditableText
    Accessible.name: root.label
    Accessible.description: root.placeholderText
    Keys.onPressed: event => opener.takeKey(event)

    EditMenuOpener {
        id: opener

        field: root
    }

    Text {
        id: placeholder

        objectName: "placeholder"
        x: root.leftPadding
        y: root.topPadding
        width: root.width - root.leftPadding - root.rightPadding
        height: root.height - root.topPadding - root.bottomPadding
        visible: root.length === 0 && root.preeditText === ""
        text: root.placeholderText
        font: root.font
        color: root.placeholderTextColor
        textFormat: Text.PlainText
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }

    background: FieldGround {
        ringed: root.activeFocus || opener.opened
        dimmed: !root.enabled
    }
}
