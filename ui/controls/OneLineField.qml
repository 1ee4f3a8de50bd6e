import QtQuick
import QtQuick.Templates as T
import Tavlo

// A field for one line of text. It keeps every character that it is given, line breaks too.
T.TextField {
    id: root

    // What the field is for. The form draws it; here it is the name for assistive tools.
    property string label: ""

    // Whether the placeholder stands in the place of a text.
    readonly property bool hinting: root.length === 0 && root.preeditText === ""
    readonly property bool inUse: root.activeFocus || opener.opened
    readonly property bool runsFromRight: root.effectiveHorizontalAlignment === TextInput.AlignRight

    // While the text scrolls: it moves the cursor's rectangle, which would scroll it again.
    property bool scrolling: false

    // A long text is seen from its start, unless the cursor is in it.
    function showStart(): void {
        if (root.scrolling || root.activeFocus || opener.opened)
            return;
        root.scrolling = true;
        root.ensureVisible(0);
        root.scrolling = false;
    }

    implicitWidth: Math.max(placeholder.implicitWidth, 12 * Theme.bodySize) + leftPadding + rightPadding
    implicitHeight: Math.max(contentHeight, root.hinting ? placeholder.implicitHeight : 0) + 2 * Theme.controlPadding
    // Where the text is cut, it is cut at the padding above and below, too: marks of other fonts reach
    // there.
    padding: Theme.focusWidth
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
    Keys.onPressed: event => {
        event.accepted = Composition.endByKey(event.key);
        if (!event.accepted)
            opener.takeKey(event);
    }

    onActiveFocusChanged: {
        if (root.activeFocus) {
            root.ensureVisible(root.cursorPosition);
        } else {
            Composition.commitIn(root);
            root.showStart();
        }
    }
    onCursorRectangleChanged: root.showStart()

    EditMenuOpener {
        id: opener

        field: root
    }

    // Where the text of the hint is too long for a line, the field is as high as its lines.
    Text {
        id: placeholder

        objectName: "placeholder"
        x: root.leftPadding
        y: root.topPadding
        width: root.width - root.leftPadding - root.rightPadding
        height: root.height - root.topPadding - root.bottomPadding
        visible: root.hinting
        text: root.placeholderText
        font: root.font
        color: root.placeholderTextColor
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }

    // Where a text is cut, it fades out: it can be seen to go on.
    EdgeFade {
        // The text is seen for a cursor's width beyond its edge.
        readonly property int beyond: 3

        objectName: "fade"
        visible: !root.inUse && root.contentWidth > root.width - root.leftPadding - root.rightPadding
        x: root.runsFromRight ? root.leftPadding - beyond : root.width - root.rightPadding + beyond - width
        y: root.topPadding
        width: 2 * Theme.bodySize
        height: root.height - root.topPadding - root.bottomPadding
        ground: (root.background as FieldGround).color
        edge: root.runsFromRight ? Qt.LeftEdge : Qt.RightEdge
    }

    background: FieldGround {
        ringed: root.inUse
        dimmed: !root.enabled
    }
}
