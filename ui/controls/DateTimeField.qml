import QtQuick
import QtQuick.Controls.Basic
import Tavlo

// A date and a time of day, edited part by part or picked from a grid of days. The owner gives a
// PostDate and reads it back; it holds a valid date at all times. The day, the button of the grid
// and the time are one stop of the Tab key each.
FocusScope {
    id: root

    required property PostDate postDate
    // The field's name, for assistive tools.
    required property string label

    readonly property bool popupOpen: month.visible
    readonly property bool rightToLeft: root.LayoutMirroring.enabled

    // Where the keyboard returns to from the grid of days.
    property Item opener: monthButton

    function focusPart(part: DatePart): void {
        day.focusPart(part);
        time.focusPart(part);
    }

    function focusEnd(last: bool): void {
        root.focusPart(last ? root.postDate.lastPart : root.postDate.firstDayPart);
    }

    function openMonth(opener: Item): void {
        root.opener = opener;
        root.postDate.showMonth();
        month.open();
    }

    implicitWidth: dayAndButton.implicitWidth + Theme.spacing + timeAndStepper.implicitWidth
    implicitHeight: flow.height
    Accessible.role: Accessible.Grouping
    Accessible.name: root.label
    Accessible.description: root.postDate.dayInWords

    onActiveFocusChanged: {
        if (!root.activeFocus)
            root.postDate.settle();
    }

    Flow {
        id: flow

        width: root.width
        spacing: Theme.spacing

        Row {
            id: dayAndButton

            spacing: Theme.spacing / 2

            DateSegments {
                id: day

                objectName: "dayParts"
                isEntry: true
                parts: root.postDate.dayParts
                firstPart: root.postDate.firstDayPart
                impossible: root.postDate.unsettled
                onPartAsked: part => root.focusPart(part)
                onMoved: columns => {
                    if (columns === (root.rightToLeft ? -1 : 1))
                        time.focusEdge(!root.rightToLeft);
                }
                onMovedToEnd: last => root.focusEnd(last)
                onMonthAsked: root.openMonth(day)
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
                        root.openMonth(monthButton);
                }

                MonthPopup {
                    id: month

                    objectName: "monthPopup"
                    postDate: root.postDate
                    rightToLeft: root.rightToLeft
                    onClosed: {
                        if (root.opener === day)
                            day.focusPart(day.currentPart);
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
                firstPart: root.postDate.firstTimePart
                impossible: root.postDate.unsettled
                onPartAsked: part => root.focusPart(part)
                onMoved: columns => {
                    if (columns === (root.rightToLeft ? 1 : -1))
                        day.focusEdge(root.rightToLeft);
                }
                onMovedToEnd: last => root.focusEnd(last)
                onMonthAsked: root.openMonth(day)
            }

            DateStepper {
                height: time.height
                objectName: "timeStepper"
                onStepped: by => {
                    time.focusPart(time.currentPart);
                    time.currentPart.step(by);
                }
            }
        }
    }
}
