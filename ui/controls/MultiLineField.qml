import QtQuick
import QtQuick.Templates as T
import Tavlo

// A field for a text of several lines. Given its text by source, it gives the very same back by
// exactText while the user has not changed it.
FocusScope {
    id: root

    property string source: ""
    // What the field is for, as the name for assistive tools.
    property string label: ""

    property alias exactText: verbatim.exactText
    readonly property alias textArea: area

    function load(): void {
        // Emptied first: a text that only looks the same must be taken in, too.
        area.text = "";
        area.text = root.source;
        verbatim.remember(root.source);
    }

    function leave(forward: bool): void {
        const next = area.nextItemInFocusChain(forward);
        if (next)
            next.forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason);
    }

    function breakLine(): void {
        area.remove(area.selectionStart, area.selectionEnd);
        area.insert(area.cursorPosition, "\n");
    }

    implicitWidth: 24 * Theme.bodySize
    implicitHeight: 100

    onSourceChanged: root.load()
    Component.onCompleted: root.load()

    VerbatimText {
        id: verbatim

        document: area.textDocument
    }

    FieldGround {
        anchors.fill: parent
        dimmed: !root.enabled
        border.width: 0
    }

    Flickable {
        id: view

        objectName: "view"
        anchors.fill: parent
        anchors.margins: 1
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        T.TextArea.flickable: T.TextArea {
            id: area

            objectName: "textArea"
            focus: true
            padding: Theme.controlPadding
            // The scroll bar's side has room for it.
            leftPadding: Theme.controlPadding + (area.LayoutMirroring.enabled ? 8 : 2)
            rightPadding: Theme.controlPadding + (area.LayoutMirroring.enabled ? 2 : 8)
            color: root.enabled ? Theme.text : Theme.disabledText
            selectionColor: Theme.selection
            selectedTextColor: Theme.selectedText
            font.pixelSize: Theme.bodySize
            textFormat: TextEdit.PlainText
            wrapMode: TextEdit.Wrap
            selectByMouse: true
            Accessible.role: Accessible.EditableText
            Accessible.name: root.label
            Accessible.multiLine: true
            Keys.onTabPressed: event => root.leave(!(event.modifiers & Qt.ShiftModifier))
            Keys.onBacktabPressed: root.leave(false)
            Keys.onPressed: event => {
                if (Composition.endByKey(event.key)) {
                    event.accepted = true;
                    return;
                }
                const enter = event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
                if (enter && event.modifiers & Qt.ShiftModifier && !(event.modifiers & Qt.ControlModifier)) {
                    // The toolkit would put a line separator here, which no feed reader expects.
                    event.accepted = true;
                    root.breakLine();
                } else {
                    opener.takeKey(event);
                }
            }

            onActiveFocusChanged: {
                if (!area.activeFocus)
                    Composition.commitIn(area);
            }

            EditMenuOpener {
                id: opener

                field: area
            }
        }

        T.ScrollBar.vertical: ScrollIndicatorBar {
        }
    }

    Rectangle {
        objectName: "outline"
        anchors.fill: parent
        radius: 8
        color: "transparent"
        border.width: 1
        border.color: root.enabled ? Theme.border : Theme.borderDisabled
    }

    FocusRing {
        objectName: "focusRing"
        visible: area.activeFocus || opener.opened
        innerRadius: Theme.controlRadius
        gap: -Theme.focusWidth
    }
}
