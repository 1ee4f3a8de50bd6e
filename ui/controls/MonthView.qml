import QtQuick
import Tavlo

// The days of a month, and two buttons to other months. The arrow keys go by days and weeks, Page
// Up and Page Down by months, with Shift or Ctrl by years, Home and End to the ends of the week. The
// wheel goes by months.
FocusScope {
    id: root

    required property MonthDays days
    required property bool mirrored

    // The current day was chosen.
    signal taken
    // The user wants no day.
    signal dismissed

    function focusCurrentDay(): void {
        const day = cells.itemAt(root.days.currentRow);
        if (day)
            day.forceActiveFocus(Qt.TabFocusReason);
    }

    function takeRow(row: int): void {
        root.days.moveToRow(row);
        root.taken();
    }

    function move(event: KeyEvent): bool {
        const months = event.modifiers & (Qt.ShiftModifier | Qt.ControlModifier) ? 12 : 1;
        switch (event.key) {
        case Qt.Key_Left:
            root.days.moveByDays(root.mirrored ? 1 : -1);
            return true;
        case Qt.Key_Right:
            root.days.moveByDays(root.mirrored ? -1 : 1);
            return true;
        case Qt.Key_Up:
            root.days.moveByDays(-7);
            return true;
        case Qt.Key_Down:
            root.days.moveByDays(7);
            return true;
        case Qt.Key_PageUp:
            root.days.moveByMonths(-months);
            return true;
        case Qt.Key_PageDown:
            root.days.moveByMonths(months);
            return true;
        case Qt.Key_Home:
            root.days.moveToWeekStart();
            return true;
        case Qt.Key_End:
            root.days.moveToWeekEnd();
            return true;
        default:
            return false;
        }
    }

    function press(event: KeyEvent): bool {
        if (root.move(event)) {
            root.focusCurrentDay();
            return true;
        }
        const isTaking = [Qt.Key_Return, Qt.Key_Enter, Qt.Key_Space].includes(event.key);
        if (!isTaking || event.modifiers & Qt.ControlModifier)
            return false;
        root.taken();
        return true;
    }

    implicitWidth: column.implicitWidth
    implicitHeight: column.implicitHeight
    LayoutMirroring.enabled: root.mirrored
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Grouping
    Accessible.name: root.days.title

    // Escape is taken before any shortcut of the form hears of it.
    Keys.onShortcutOverride: event => event.accepted = event.key === Qt.Key_Escape
    Keys.onEscapePressed: root.dismissed()

    WheelSteps {
        onStepped: by => root.days.moveByMonths(-by)
    }

    Column {
        id: column

        spacing: Theme.spacing / 2

        Item {
            width: grid.width
            height: previous.height

            DateIconButton {
                id: previous

                objectName: "previousMonth"
                anchors.left: parent.left
                symbol: root.mirrored ? "chevron.right" : "chevron.left"
                name: qsTr("Previous Month")
                flat: true
                autoRepeat: true
                onClicked: root.days.moveByMonths(-1)
            }

            Text {
                objectName: "monthTitle"
                anchors.centerIn: parent
                width: parent.width - 2 * previous.width
                text: root.days.title
                textFormat: Text.PlainText
                font.pixelSize: Theme.bodySize
                font.bold: true
                fontSizeMode: Text.HorizontalFit
                horizontalAlignment: Text.AlignHCenter
                color: Theme.text
                Accessible.role: Accessible.Heading
                Accessible.name: root.days.title
            }

            DateIconButton {
                objectName: "nextMonth"
                anchors.right: parent.right
                symbol: root.mirrored ? "chevron.left" : "chevron.right"
                name: qsTr("Next Month")
                flat: true
                autoRepeat: true
                onClicked: root.days.moveByMonths(1)
            }
        }

        Grid {
            id: grid

            columns: 7
            horizontalItemAlignment: Grid.AlignHCenter
            Keys.onPressed: event => event.accepted = root.press(event)

            Repeater {
                model: root.days.weekdays
                delegate: WeekdayName {
                }
            }

            Repeater {
                id: cells

                model: root.days
                delegate: MonthDay {
                }
                // The delegate is a file of its own, which cannot see this one.
                onItemAdded: (index, item) => (item as MonthDay).chosen.connect(root.takeRow)
            }
        }
    }
}
