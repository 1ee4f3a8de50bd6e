import QtQuick
import Tavlo

// One part of a date, its day say, that takes keys of its own: digits replace its number, Up and
// Down step it. It is drawn between the texts that separate it from its neighbours.
Item {
    id: root

    required property DatePart modelData
    // Whether the Tab key stops here.
    property bool tabStop: false
    // Whether the parts together show a date that there is not.
    property bool impossible: false

    // What assistive tools read and set.
    property int value: -1
    readonly property int minimumValue: root.modelData.minimum
    readonly property int maximumValue: root.modelData.maximum
    readonly property int stepSize: 1

    // The keyboard is to go to another part: to a certain one, to the one beside this on screen, to
    // the first or the last of all.
    signal partAsked(DatePart part)
    signal moved(int columns)
    signal movedToEnd(bool last)
    // The month grid is to open.
    signal monthAsked

    function name(): string {
        switch (root.modelData.kind) {
        case DatePart.Year:
            return qsTr("Year");
        case DatePart.Month:
            return qsTr("Month");
        case DatePart.Day:
            return qsTr("Day");
        case DatePart.Hour:
            return qsTr("Hour");
        case DatePart.Minute:
            return qsTr("Minute");
        default:
            return qsTr("AM/PM");
        }
    }

    function ask(part: DatePart): void {
        if (part)
            root.partAsked(part);
    }

    function type(character: string): bool {
        if (character < " " || character === "\u007f")
            return false;
        if (root.modelData.type(character))
            root.ask(root.modelData.next);
        return true;
    }

    function erase(): void {
        if (root.modelData.value < 0 && !root.modelData.isTyping())
            root.ask(root.modelData.previous);
        else
            root.modelData.erase();
    }

    function press(event: KeyEvent): bool {
        if (event.key === Qt.Key_F4 || (event.key === Qt.Key_Down && event.modifiers & Qt.AltModifier)) {
            root.monthAsked();
            return true;
        }
        if (event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier))
            return false;
        switch (event.key) {
        case Qt.Key_Up:
            root.modelData.step(1);
            return true;
        case Qt.Key_Down:
            root.modelData.step(-1);
            return true;
        case Qt.Key_Left:
            root.moved(-1);
            return true;
        case Qt.Key_Right:
            root.moved(1);
            return true;
        case Qt.Key_Home:
            root.movedToEnd(false);
            return true;
        case Qt.Key_End:
            root.movedToEnd(true);
            return true;
        case Qt.Key_Backspace:
        case Qt.Key_Delete:
            root.erase();
            return true;
        default:
            return root.type(event.text);
        }
    }

    objectName: ["yearPart", "monthPart", "dayPart", "hourPart", "minutePart", "dayPeriodPart"][root.modelData.kind]
    implicitWidth: row.implicitWidth
    implicitHeight: row.implicitHeight
    activeFocusOnTab: root.tabStop || root.activeFocus

    Accessible.role: Accessible.SpinBox
    Accessible.name: root.name()
    Accessible.description: root.modelData.word
    Accessible.focusable: true
    Accessible.focused: root.activeFocus
    Accessible.onIncreaseAction: root.modelData.step(1)
    Accessible.onDecreaseAction: root.modelData.step(-1)

    Keys.onPressed: event => event.accepted = root.press(event)

    onActiveFocusChanged: {
        if (!root.activeFocus)
            root.modelData.leave();
    }
    onValueChanged: {
        if (root.value !== root.modelData.value)
            root.modelData.value = root.value;
    }
    Component.onCompleted: root.value = root.modelData.value

    Connections {
        function onChanged(): void {
            root.value = root.modelData.value;
        }

        target: root.modelData
    }

    FontMetrics {
        id: metrics

        font: number.font
    }

    TapHandler {
        gesturePolicy: TapHandler.DragThreshold
        onPressedChanged: {
            if (pressed)
                root.forceActiveFocus(Qt.MouseFocusReason);
        }
    }

    Row {
        id: row

        layoutDirection: Qt.LeftToRight
        LayoutMirroring.enabled: false
        LayoutMirroring.childrenInherit: true

        Text {
            anchors.verticalCenter: pill.verticalCenter
            text: root.modelData.left
            textFormat: Text.PlainText
            font.pixelSize: Theme.bodySize
            color: Theme.secondaryText
            Accessible.ignored: true
        }

        Rectangle {
            id: pill

            implicitWidth: Math.ceil(Math.max(number.implicitWidth, ...root.modelData.samples.map(sample => metrics.advanceWidth(sample)))) + metrics.height * 0.36
            implicitHeight: Math.ceil(metrics.height) + 4
            radius: Theme.controlRadius / 2
            color: root.activeFocus ? Theme.accent : "transparent"

            Text {
                id: number

                anchors.centerIn: parent
                text: root.modelData.text
                textFormat: Text.PlainText
                font.pixelSize: Theme.bodySize
                color: root.activeFocus ? Theme.accentText : root.impossible ? Theme.error : Theme.text
                Accessible.ignored: true
            }
        }

        Text {
            anchors.verticalCenter: pill.verticalCenter
            text: root.modelData.right
            textFormat: Text.PlainText
            font.pixelSize: Theme.bodySize
            color: Theme.secondaryText
            Accessible.ignored: true
        }
    }
}
