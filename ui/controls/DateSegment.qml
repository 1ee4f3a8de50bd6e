import QtQuick
import Tavlo

// One part of a date, its day say, that takes keys of its own: digits replace its number, Up and
// Down step it, and so does the wheel once it has the keyboard. It is drawn between the texts that separate it from its neighbours.
Item {
    id: root

    required property DatePart modelData

    // What assistive tools read and set.
    property int value: -1
    readonly property int minimumValue: root.modelData.minimum
    readonly property int maximumValue: root.modelData.maximum
    readonly property int stepSize: 1

    readonly property PostDate date: root.modelData.owner
    // The width with the widest number.
    readonly property int widestWidth: {
        let widest = number.width;
        for (const sample of root.modelData.samples)
            widest = Math.max(widest, root.widthOf(sample));
        return leftText.width + widest + 2 * pill.inset + rightText.width;
    }

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

    // Gives the keyboard to another part, if there is one.
    function go(part: DatePart): void {
        if (part)
            part.askFocus();
    }

    function widthOf(text: string): int {
        return Math.ceil(metrics.advanceWidth(text));
    }

    function type(character: string): bool {
        if (character < " " || character === "\u007f")
            return false;
        if (root.modelData.type(character))
            root.go(root.modelData.next);
        return true;
    }

    function erase(): void {
        if (root.modelData.value < 0 && !root.modelData.isTyping())
            root.go(root.modelData.previous);
        else
            root.modelData.erase();
    }

    function press(event: KeyEvent): bool {
        if (event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier))
            return false;
        switch (event.key) {
        case Qt.Key_Up:
            root.modelData.step(1);
            return true;
        case Qt.Key_Down:
            root.modelData.step(-1);
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
    activeFocusOnTab: root.modelData.tabStop || root.activeFocus

    Accessible.role: Accessible.SpinBox
    Accessible.name: root.name()
    Accessible.description: root.modelData.value < 0 ? qsTr("Empty") : root.modelData.word
    Accessible.focusable: true
    Accessible.focused: root.activeFocus
    Accessible.onIncreaseAction: root.modelData.step(1)
    Accessible.onDecreaseAction: root.modelData.step(-1)

    Keys.onPressed: event => event.accepted = root.press(event)

    onActiveFocusChanged: {
        if (root.activeFocus)
            root.modelData.enter();
        else
            root.modelData.leave();
    }
    onValueChanged: {
        if (root.value !== root.modelData.value)
            root.modelData.value = root.value;
    }
    Component.onCompleted: {
        root.value = root.modelData.value;
        root.focus = root.modelData.tabStop;
    }

    Connections {
        function onChanged(): void {
            root.value = root.modelData.value;
        }

        function onFocusAsked(): void {
            root.forceActiveFocus(Qt.TabFocusReason);
        }

        target: root.modelData
    }

    FontMetrics {
        id: metrics

        font: number.font
    }

    TapHandler {
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        gesturePolicy: TapHandler.DragThreshold
        onPressedChanged: {
            if (pressed)
                root.forceActiveFocus(Qt.MouseFocusReason);
        }
    }

    WheelSteps {
        enabled: root.activeFocus
        onStepped: by => root.modelData.step(by)
    }

    // All widths are whole, so that every part and separator begins at a pixel.
    Row {
        id: row

        layoutDirection: Qt.LeftToRight
        LayoutMirroring.enabled: false
        LayoutMirroring.childrenInherit: true

        Text {
            id: leftText

            anchors.verticalCenter: pill.verticalCenter
            width: Math.ceil(implicitWidth)
            text: root.modelData.left
            textFormat: Text.PlainText
            font.pixelSize: Theme.bodySize
            color: Theme.secondaryText
            Accessible.ignored: true
        }

        Rectangle {
            id: pill

            readonly property int inset: Math.round(metrics.height * 0.15)

            implicitWidth: number.width + 2 * pill.inset
            implicitHeight: Math.ceil(metrics.height) + 4
            radius: Theme.controlRadius / 2
            color: root.activeFocus ? Theme.accent : "transparent"

            Text {
                id: number

                anchors.centerIn: parent
                width: root.widthOf(root.modelData.text)
                text: root.modelData.text
                textFormat: Text.PlainText
                font.pixelSize: Theme.bodySize
                color: root.activeFocus ? Theme.accentText : root.date.unsettled ? Theme.error : Theme.text
                Accessible.ignored: true
            }
        }

        Text {
            id: rightText

            anchors.verticalCenter: pill.verticalCenter
            width: Math.ceil(implicitWidth)
            text: root.modelData.right
            textFormat: Text.PlainText
            font.pixelSize: Theme.bodySize
            color: Theme.secondaryText
            Accessible.ignored: true
        }
    }
}
