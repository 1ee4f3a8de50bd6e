import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Templates as T
import Tavlo

// The days of a month, to pick one from by mouse or keyboard. The arrow keys go by days and weeks,
// Page Up and Page Down by months, with Shift or Ctrl by years, Home and End to the ends of the
// week. Return and Space take the day; Escape leaves the date as it is.
T.Popup {
    id: root

    required property PostDate postDate
    required property bool rightToLeft

    readonly property MonthDays days: root.postDate.month
    readonly property real cellSize: Math.ceil(Theme.bodySize * 2.4)

    function choose(): void {
        if (!root.opened)
            return;
        root.postDate.takeDay();
        root.close();
    }

    function focusCurrent(): void {
        const day = cells.itemAt(root.days.currentRow);
        if (day)
            day.forceActiveFocus(Qt.TabFocusReason);
    }

    // Beneath the button, or above it where there is room only there.
    function place(): void {
        const anchor = root.parent;
        const gap = Theme.spacing / 2;
        const needed = root.implicitHeight + gap + Theme.spacing;
        const above = anchor.mapToItem(T.Overlay.overlay, 0, 0).y;
        const below = T.Overlay.overlay.height - above - anchor.height;
        root.y = below < needed && above >= needed ? -root.implicitHeight - gap : anchor.height + gap;
    }

    function pressInGrid(event: KeyEvent): bool {
        const byYears = event.modifiers & (Qt.ShiftModifier | Qt.ControlModifier);
        const towardsRight = root.rightToLeft ? -1 : 1;
        switch (event.key) {
        case Qt.Key_Left:
            root.days.moveByDays(-towardsRight);
            break;
        case Qt.Key_Right:
            root.days.moveByDays(towardsRight);
            break;
        case Qt.Key_Up:
            root.days.moveByDays(-7);
            break;
        case Qt.Key_Down:
            root.days.moveByDays(7);
            break;
        case Qt.Key_PageUp:
            root.days.moveByMonths(byYears ? -12 : -1);
            break;
        case Qt.Key_PageDown:
            root.days.moveByMonths(byYears ? 12 : 1);
            break;
        case Qt.Key_Home:
            root.days.moveToWeekStart();
            break;
        case Qt.Key_End:
            root.days.moveToWeekEnd();
            break;
        case Qt.Key_Return:
        case Qt.Key_Enter:
        case Qt.Key_Space:
            if (event.modifiers & Qt.ControlModifier)
                return false;
            root.choose();
            return true;
        default:
            return false;
        }
        root.focusCurrent();
        return true;
    }

    x: root.rightToLeft ? root.parent.width - root.implicitWidth : 0
    margins: Theme.spacing
    padding: Theme.spacing
    implicitWidth: column.implicitWidth + root.leftPadding + root.rightPadding
    implicitHeight: column.implicitHeight + root.topPadding + root.bottomPadding
    focus: true
    closePolicy: T.Popup.CloseOnPressOutsideParent

    onAboutToShow: root.place()
    onOpened: root.focusCurrent()

    background: Rectangle {
        color: Theme.menu
        radius: Theme.menuRadius
        border.color: Theme.separator

        SoftShadow {
            z: -1
        }
    }

    contentItem: FocusScope {
        LayoutMirroring.enabled: root.rightToLeft
        LayoutMirroring.childrenInherit: true
        Accessible.role: Accessible.Dialog
        Accessible.name: root.days.title

        // Escape is for this popup alone, whatever shortcuts there are behind it.
        Keys.onShortcutOverride: event => event.accepted = event.key === Qt.Key_Escape
        Keys.onEscapePressed: root.close()

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
                    symbol: root.rightToLeft ? "chevron.right" : "chevron.left"
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
                    symbol: root.rightToLeft ? "chevron.left" : "chevron.right"
                    name: qsTr("Next Month")
                    flat: true
                    autoRepeat: true
                    onClicked: root.days.moveByMonths(1)
                }
            }

            Row {
                Repeater {
                    model: root.days.weekdays

                    delegate: WeekdayName {
                        width: root.cellSize
                    }
                }
            }

            Grid {
                id: grid

                columns: 7
                Keys.onPressed: event => event.accepted = root.pressInGrid(event)

                Repeater {
                    id: cells

                    model: root.days

                    delegate: MonthDay {
                        id: cell

                        implicitWidth: root.cellSize
                        implicitHeight: root.cellSize
                        onChosen: {
                            root.days.moveToRow(cell.index);
                            root.choose();
                        }
                    }
                }
            }
        }
    }

    enter: Transition {
        NumberAnimation {
            property: "opacity"
            from: 0
            to: 1
            duration: Theme.shortDuration
        }
    }

    exit: Transition {
        NumberAnimation {
            property: "opacity"
            to: 0
            duration: Theme.shortDuration
        }
    }
}
