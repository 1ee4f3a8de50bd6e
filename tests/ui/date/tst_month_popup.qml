import QtQuick
import QtQuick.Controls.Basic
import QtTest
import Tavlo
import Tavlo.DateTest

Item {
    id: root

    width: 700
    height: 600

    Component {
        id: fields

        DateTimeField {
            width: 620
            label: "Date"
        }
    }

    TextInput {
        id: beside

        x: 600
        y: 560
        width: 80
        height: 20
        activeFocusOnTab: true
    }

    Shortcut {
        id: escapeBehind

        property int count: 0

        sequence: "Escape"
        onActivated: escapeBehind.count += 1
    }

    Shortcut {
        id: saveBehind

        property int count: 0

        sequence: "Ctrl+Return"
        onActivated: saveBehind.count += 1
    }

    TestCase {
        id: test

        property PostDate date: null
        property DateTimeField field: null
        property Item button: null

        function openField(locale: string): void {
            test.date = DateHand.postDate(locale, "UTC", DateHand.utc(2026, 1, 31, 14, 30, 17.25));
            test.field = createTemporaryObject(fields, root, {
                    "postDate": test.date
                });
            test.button = findChild(test.field, "monthButton");
            beside.text = "";
            escapeBehind.count = 0;
            saveBehind.count = 0;
        }

        function openMonth(locale: string): void {
            test.openField(locale);
            test.button.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Space);
            test.waitUntilOpen();
        }

        function openMonthByMouse(locale: string): void {
            test.openField(locale);
            mouseClick(test.button);
            test.waitUntilOpen();
        }

        function waitUntilOpen(): void {
            tryVerify(() => root.Window.activeFocusItem.objectName.startsWith("monthDay"));
            tryVerify(() => findChild(test.field, "monthPopup").opened);
        }

        function focusedDay(): string {
            return DateHand.accessible(root.Window.activeFocusItem).name;
        }

        function dayNamed(name: string): Item {
            const popup = findChild(test.field, "monthPopup");
            for (let i = 0; i < 42; ++i) {
                const day = findChild(popup.contentItem, "monthDay" + i);
                if (DateHand.accessible(day).name === name)
                    return day;
            }
            return null;
        }

        function verifyClosed(): void {
            tryVerify(() => !findChild(test.field, "monthPopup").visible);
            verify(test.button.activeFocus);
        }

        name: "MonthPopup"
        when: windowShown

        function test_opensAtTheDay(): void {
            test.openMonth("en_US");
            verify(findChild(test.field, "monthPopup").visible);
            compare(test.focusedDay(), "Saturday, January 31, 2026");
            const seen = DateHand.accessible(findChild(test.field, "monthPopup").contentItem);
            compare(seen.name, "January 2026");
            compare(seen.role, "Grouping");
            const dialog = DateHand.accessible(findChild(test.field, "monthPopup").contentItem.parent);
            compare(dialog.name, "Choose Day");
            compare(dialog.role, "Dialog");
        }

        function test_keysMoveByDaysWeeksMonthsAndYears(): void {
            test.openMonth("en_US");
            const steps = [[Qt.Key_Left, Qt.NoModifier, "Friday, January 30, 2026"], [Qt.Key_Right, Qt.NoModifier, "Saturday, January 31, 2026"], [Qt.Key_Down, Qt.NoModifier, "Saturday, February 7, 2026"], [Qt.Key_Up, Qt.NoModifier, "Saturday, January 31, 2026"], [Qt.Key_PageDown, Qt.NoModifier, "Saturday, February 28, 2026"], [Qt.Key_PageUp, Qt.NoModifier, "Saturday, January 31, 2026"], [Qt.Key_PageDown, Qt.ShiftModifier, "Sunday, January 31, 2027"], [Qt.Key_PageUp, Qt.ControlModifier, "Saturday, January 31, 2026"], [Qt.Key_Home, Qt.NoModifier, "Sunday, January 25, 2026"], [Qt.Key_End, Qt.NoModifier, "Saturday, January 31, 2026"]];
            for (const [key, modifiers, day] of steps) {
                keyClick(key, modifiers);
                compare(test.focusedDay(), day);
            }
            compare(DateHand.shown(test.date), "1 31 2026 2 30 PM");
        }

        function test_returnAndSpaceTakeTheDay_data(): var {
            return [{
                    "tag": "Return",
                    "key": Qt.Key_Return
                }, {
                    "tag": "Enter",
                    "key": Qt.Key_Enter
                }, {
                    "tag": "Space",
                    "key": Qt.Key_Space
                }];
        }

        function test_returnAndSpaceTakeTheDay(data: var): void {
            test.openMonth("en_US");
            keyClick(Qt.Key_PageUp);
            keyClick(Qt.Key_Left);
            keyClick(data.key);
            test.verifyClosed();
            compare(DateHand.secondsOf(test.date), DateHand.utc(2025, 12, 30, 14, 30, 17.25));
            compare(escapeBehind.count, 0);
        }

        function test_escapeClosesThePopupAlone(): void {
            test.openMonth("en_US");
            keyClick(Qt.Key_PageUp);
            keyClick(Qt.Key_Escape);
            test.verifyClosed();
            compare(DateHand.secondsOf(test.date), DateHand.utc(2026, 1, 31, 14, 30, 17.25));
            compare(escapeBehind.count, 0);
            keyClick(Qt.Key_Escape);
            compare(escapeBehind.count, 1);
        }

        function test_keysRightAfterItAreTheForms(): void {
            test.openMonth("en_US");
            keyClick(Qt.Key_Escape);
            keyClick(Qt.Key_Escape);
            compare(escapeBehind.count, 1);
        }

        function test_openedByAKey_itLeavesTheButtonWithARing_data(): var {
            return [{
                    "tag": "a day taken",
                    "key": Qt.Key_Return
                }, {
                    "tag": "none",
                    "key": Qt.Key_Escape
                }];
        }

        function test_openedByAKey_itLeavesTheButtonWithARing(data: var): void {
            test.openMonth("en_US");
            keyClick(data.key);
            test.verifyClosed();
            verify(findChild(test.button, "focusRing").visible);
        }

        function test_openedByTheMouse_itLeavesTheButtonWithoutARing(): void {
            test.openMonthByMouse("en_US");
            mouseClick(test.dayNamed("Tuesday, January 6, 2026"));
            test.verifyClosed();
            verify(!findChild(test.button, "focusRing").visible);
        }

        function test_aClickIntoAnotherField_givesItTheKeyboard(): void {
            test.openMonth("en_US");
            mouseClick(beside);
            keyClick("a");
            tryVerify(() => !findChild(test.field, "monthPopup").visible);
            keyClick("b");
            compare(beside.text, "ab");
            verify(beside.activeFocus);
        }

        function test_theWheelGoesByMonths(): void {
            test.openMonth("en_US");
            const content = findChild(test.field, "monthPopup").contentItem;
            const turn = angle => mouseWheel(content, content.width / 2, content.height / 2, 0, angle);
            turn(-120);
            compare(findChild(content, "monthTitle").text, "February 2026");
            turn(240);
            compare(findChild(content, "monthTitle").text, "December 2025");
            for (let i = 0; i < 4; ++i)
                turn(-30);
            compare(findChild(content, "monthTitle").text, "January 2026");
        }

        function test_aDayBeyondTheCalendar_isNotTaken(): void {
            test.openMonth("en_US");
            test.date.date = DateHand.postDate("en_US", "UTC", DateHand.utc(9999, 12, 20, 0, 0, 0)).date;
            test.date.showMonth();
            const content = findChild(test.field, "monthPopup").contentItem;
            const last = findChild(content, "monthDay41");
            compare(DateHand.accessible(last).name, "");
            DateHand.act(last, "Press");
            mouseClick(last);
            verify(findChild(test.field, "monthPopup").opened);
            compare(DateHand.secondsOf(test.date), DateHand.utc(9999, 12, 20, 0, 0, 0));
        }

        function test_aClickTakesADay(): void {
            test.openMonthByMouse("en_US");
            mouseClick(test.dayNamed("Tuesday, January 6, 2026"));
            test.verifyClosed();
            compare(DateHand.secondsOf(test.date), DateHand.utc(2026, 1, 6, 14, 30, 17.25));
        }

        function test_aClickOutsideClosesIt(): void {
            test.openMonth("en_US");
            mouseClick(root, root.width - 5, root.height - 5);
            tryVerify(() => !findChild(test.field, "monthPopup").visible);
            compare(DateHand.secondsOf(test.date), DateHand.utc(2026, 1, 31, 14, 30, 17.25));
        }

        function test_theButtonClosesItToo(): void {
            test.openMonth("en_US");
            mouseClick(test.button);
            tryVerify(() => !findChild(test.field, "monthPopup").visible);
            wait(300);
            verify(!findChild(test.field, "monthPopup").visible);
        }

        function test_buttonsShowOtherMonths(): void {
            test.openMonth("en_US");
            const content = findChild(test.field, "monthPopup").contentItem;
            mouseClick(findChild(content, "nextMonth"));
            compare(findChild(content, "monthTitle").text, "February 2026");
            mouseClick(findChild(content, "previousMonth"));
            mouseClick(findChild(content, "previousMonth"));
            compare(findChild(content, "monthTitle").text, "December 2025");
        }

        function test_tabStaysInside(): void {
            test.openMonth("en_US");
            const content = findChild(test.field, "monthPopup").contentItem;
            const stops = [];
            for (let i = 0; i < 3; ++i) {
                keyClick(Qt.Key_Tab);
                stops.push(root.Window.activeFocusItem.objectName);
            }
            compare(stops.slice(0, 2), ["previousMonth", "nextMonth"]);
            verify(stops[2].startsWith("monthDay"));
            keyClick(Qt.Key_Tab, Qt.ShiftModifier);
            verify(findChild(content, "nextMonth").activeFocus);
            keyClick(Qt.Key_Escape);
            test.verifyClosed();
        }

        function test_otherShortcutsGoOn(): void {
            test.openMonth("en_US");
            keyClick(Qt.Key_Return, Qt.ControlModifier);
            compare(saveBehind.count, 1);
            compare(DateHand.secondsOf(test.date), DateHand.utc(2026, 1, 31, 14, 30, 17.25));
        }

        function test_altDownOpensItFromAPart_andLeadsBack(): void {
            test.openField("en_US");
            const year = findChild(test.field, "yearPart");
            year.forceActiveFocus();
            keyClick(Qt.Key_Down, Qt.AltModifier);
            tryVerify(() => findChild(test.field, "monthPopup").opened);
            keyClick(Qt.Key_Up);
            keyClick(Qt.Key_Return);
            tryVerify(() => !findChild(test.field, "monthPopup").visible);
            verify(year.activeFocus);
            compare(DateHand.shown(test.date), "1 24 2026 2 30 PM");
        }

        function test_mirroredInRightToLeftForms(): void {
            test.openField("ar_EG");
            test.field.LayoutMirroring.enabled = true;
            test.field.LayoutMirroring.childrenInherit = true;
            test.button.forceActiveFocus();
            keyClick(Qt.Key_Space);
            tryVerify(() => findChild(test.field, "monthPopup").opened);
            const first = root.Window.activeFocusItem;
            const x = first.mapToItem(root, 0, 0).x;
            keyClick(Qt.Key_Left);
            compare(test.date.month.title, "فبراير ٢٠٢٦");
            keyClick(Qt.Key_Right);
            compare(root.Window.activeFocusItem, first);
            // A Saturday, with which the week begins.
            const content = findChild(test.field, "monthPopup").contentItem;
            verify(x > content.mapToItem(root, content.width / 2, 0).x);
        }

        function test_weeksBeginAsInTheLocale_data(): var {
            return [{
                    "tag": "en_US",
                    "first": "Su"
                }, {
                    "tag": "de_DE",
                    "first": "Mo"
                }, {
                    "tag": "ar_EG",
                    "first": "س"
                }];
        }

        function test_weeksBeginAsInTheLocale(data: var): void {
            test.openField(data.tag);
            compare(test.date.month.weekdays[0], data.first);
        }

        function test_assistiveToolsReadAndPressDays(): void {
            test.openMonth("en_US");
            const selected = DateHand.accessible(root.Window.activeFocusItem);
            compare(selected.role, "Button");
            verify(selected.selected);
            verify(selected.focusable);
            verify(selected.focused);
            const other = test.dayNamed("Friday, January 2, 2026");
            verify(!DateHand.accessible(other).selected);
            verify(DateHand.act(other, "Press"));
            test.verifyClosed();
            compare(DateHand.secondsOf(test.date), DateHand.utc(2026, 1, 2, 14, 30, 17.25));
            compare(DateHand.accessible(test.button).name, "Choose Day");
            verify(DateHand.act(test.button, "Press"));
            tryVerify(() => findChild(test.field, "monthPopup").visible);
        }

        function test_closesWithAFormThatTakesNoMoreInput(): void {
            test.openMonth("en_US");
            test.field.enabled = false;
            tryVerify(() => !findChild(test.field, "monthPopup").visible);
            compare(DateHand.secondsOf(test.date), DateHand.utc(2026, 1, 31, 14, 30, 17.25));
        }

        function test_nothingIsTakenTwice(): void {
            test.openMonth("en_US");
            const day = test.dayNamed("Friday, January 2, 2026");
            const place = day.mapToItem(root, day.width / 2, day.height / 2);
            keyClick(Qt.Key_Return);
            mouseClick(root, place.x, place.y);
            DateHand.act(day, "Press");
            test.verifyClosed();
            compare(DateHand.secondsOf(test.date), DateHand.utc(2026, 1, 31, 14, 30, 17.25));
        }
    }
}
