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

    readonly property bool popupOpen: month.visible
    readonly property bool mirrored: root.LayoutMirroring.enabled

    // The part to which the keyboard returns from the grid of days; null for the button.
    property DatePart opener: null

    function openMonth(opener: DatePart): void {
        root.opener = opener;
        root.postDate.showMonth();
        month.open();
    }

    function press(event: KeyEvent): bool {
        const isAsked = event.key === Qt.Key_F4 || (event.key === Qt.Key_Down && event.modifiers & Qt.AltModifier);
        if (isAsked)
            root.openMonth(root.postDate.currentPart);
        return isAsked;
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
                mirrored: root.mirrored
            }

            DateIconButton {
                id: monthButton

                objectName: "monthButton"
                symbol: "calendar"
                name: qsTr("Choose Day")
                onClicked: {
                    if (month.opened)
                        month.close();
                    else
                        root.openMonth(null);
                }

                MonthPopup {
                    id: month

                    objectName: "monthPopup"
                    postDate: root.postDate
                    rightToLeft: root.mirrored
                    onClosed: {
                        if (root.opener)
                            root.opener.askFocus();
                        else
                            monthButton.forceActiveFocus(Qt.PopupFocusReason);
                    }
                }
            }
        }

        Row {
            id: timeAndStepper

            DateSegments {
                id: time

                objectName: "timeParts"
                parts: root.postDate.timeParts
                mirrored: root.mirrored
            }

            DateStepper {
                objectName: "timeStepper"
                height: time.height
                onStepped: by => {
                    root.postDate.currentTimePart.askFocus();
                    root.postDate.currentTimePart.step(by);
                }
            }
        }
    }
}
