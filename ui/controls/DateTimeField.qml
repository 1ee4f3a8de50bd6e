import QtQuick
import Tavlo

// A date and a time of day, edited part by part or picked from a grid of days. The owner gives a
// PostDate and reads it back; it holds a valid date at all times. The day, the button of the grid
// and the time are one stop of the Tab key each; within the day and the time the arrow keys move.
FocusScope {
    id: root

    required property PostDate postDate
    // The field's name, for assistive tools.
    required property string label

    readonly property bool mirrored: root.LayoutMirroring.enabled

    // The part to which the keyboard returns from the grid of days; null for the button.
    property DatePart opener: null
    // Whether the button shows then that it has the keyboard.
    property bool openedByKey: false

    function openMonth(opener: DatePart): void {
        root.opener = opener;
        root.openedByKey = monthButton.visualFocus;
        root.postDate.showMonth();
        month.open();
    }

    function returnFocus(): void {
        if (root.opener) {
            root.opener.askFocus();
            return;
        }
        monthButton.forceActiveFocus();
        // The closing popup may have given the button the focus before, for a reason of its own.
        monthButton.focusReason = root.openedByKey ? Qt.TabFocusReason : Qt.PopupFocusReason;
    }

    // Gives the keyboard to another part, if there is one.
    function go(part: DatePart): void {
        if (part)
            part.askFocus();
    }

    function goBeside(places: int): void {
        root.go(root.postDate.partBeside(root.postDate.currentPart, places, root.mirrored));
    }

    function move(event: KeyEvent): bool {
        if (!root.postDate.currentPart || event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier))
            return false;
        switch (event.key) {
        case Qt.Key_Left:
            root.goBeside(-1);
            return true;
        case Qt.Key_Right:
            root.goBeside(1);
            return true;
        case Qt.Key_Home:
            root.go(root.postDate.firstDayPart);
            return true;
        case Qt.Key_End:
            root.go(root.postDate.lastPart);
            return true;
        default:
            return false;
        }
    }

    // The editing commands, which are for the date as a whole. (qmllint does not know StandardKey.)
    // qmllint disable unqualified
    function edit(event: KeyEvent): bool {
        if (event.matches(StandardKey.Copy))
            root.postDate.copy();
        else if (event.matches(StandardKey.Paste))
            root.postDate.paste();
        else if (event.matches(StandardKey.Undo))
            root.postDate.undo();
        else
            return false;
        return true;
    }

    // qmllint enable unqualified
    // Opens the menu of editing commands, which is made when it is first asked for.
    function openMenu(item: Item, x: real, y: real, byKey: bool): void {
        if (menu.item === null) {
            menu.setSource("DateMenu.qml", {
                    "postDate": root.postDate
                });
        }
        (menu.item as DateMenu).openAt(item, x, y, byKey);
    }

    function open(event: KeyEvent): bool {
        const isForMonth = event.key === Qt.Key_F4 || (event.key === Qt.Key_Down && event.modifiers & Qt.AltModifier);
        const isForMenu = event.key === Qt.Key_Menu || (event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier);
        const focused = root.Window.activeFocusItem;
        if (isForMonth)
            root.openMonth(root.postDate.currentPart);
        else if (isForMenu)
            root.openMenu(focused, 0, focused.height, true);
        return isForMonth || isForMenu;
    }

    function press(event: KeyEvent): bool {
        return root.open(event) || root.move(event) || root.edit(event);
    }

    implicitWidth: dayAndButton.implicitWidth + flow.spacing + timeAndStepper.implicitWidth
    implicitHeight: flow.height
    Accessible.role: Accessible.Grouping
    Accessible.name: root.label
    Accessible.description: root.postDate.dayInWords

    Keys.onPressed: event => event.accepted = root.press(event)

    onActiveFocusChanged: {
        if (!root.activeFocus)
            root.postDate.settle();
    }
    onEnabledChanged: {
        if (!root.enabled)
            month.close();
    }

    Loader {
        id: menu
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        onPressedChanged: {
            if (pressed)
                root.openMenu(root, point.position.x, point.position.y, false);
        }
    }

    Flow {
        id: flow

        width: root.width
        spacing: Theme.spacing

        Row {
            id: dayAndButton

            spacing: Theme.spacing / 2

            DateSegments {
                objectName: "dayParts"
                parts: root.postDate.dayParts
                isEntry: true
            }

            DateIconButton {
                id: monthButton

                objectName: "monthButton"
                symbol: "calendar"
                name: qsTr("Choose Day")
                onClicked: {
                    if (month.visible)
                        month.close();
                    else
                        root.openMonth(null);
                }

                MonthPopup {
                    id: month

                    objectName: "monthPopup"
                    postDate: root.postDate
                    rightToLeft: root.mirrored
                    onDone: root.returnFocus()
                }
            }
        }

        Row {
            id: timeAndStepper

            DateSegments {
                id: time

                objectName: "timeParts"
                parts: root.postDate.timeParts
            }

            DateStepper {
                objectName: "timeStepper"
                height: time.height
                onStepped: by => {
                    root.postDate.currentTimePart.askFocus();
                    root.postDate.currentTimePart.step(by);
                }

                // Elsewhere the wheel scrolls the form.
                WheelSteps {
                    enabled: time.ringed
                    onStepped: by => root.postDate.currentTimePart.step(by)
                }
            }
        }
    }
}
