import QtQuick
import QtTest
import Tavlo
import Tavlo.DateTest

Item {
    id: root

    width: 700
    height: 600

    Component {
        id: forms

        Column {
            id: form

            required property PostDate date
            readonly property alias field: field
            readonly property alias before: before
            readonly property alias after: after

            width: 620
            spacing: 10

            Rectangle {
                id: before

                width: 50
                height: 20
                activeFocusOnTab: true
            }

            DateTimeField {
                id: field

                width: form.width
                postDate: form.date
                label: "Date"
            }

            Rectangle {
                id: after

                width: 50
                height: 20
                activeFocusOnTab: true
            }
        }
    }

    Item {
        id: behind

        property var keys: []

        Keys.onPressed: event => behind.keys.push(event.key)
    }

    TestCase {
        id: test

        property PostDate date: null
        property Item form: null
        property DateTimeField field: null

        function open(locale: string, zone: string, seconds: real): void {
            test.date = DateHand.postDate(locale, zone, seconds);
            test.form = createTemporaryObject(forms, root, {
                    "date": test.date
                });
            test.field = test.form.field;
            test.form.before.forceActiveFocus();
        }

        function openAmerican(): void {
            test.open("en_US", "America/New_York", DateHand.utc(2026, 1, 5, 14, 30, 17.25));
        }

        function openGerman(): void {
            test.open("de_DE", "Europe/Berlin", DateHand.utc(2026, 2, 15, 8, 30, 17.25));
        }

        function part(name: string): Item {
            return findChild(test.field, name + "Part");
        }

        function enter(name: string): void {
            test.part(name).forceActiveFocus();
        }

        function type(keys: string): void {
            for (const key of keys)
                keyClick(key);
        }

        function focusedName(): string {
            return root.Window.activeFocusItem.objectName;
        }

        name: "DateTimeField"
        when: windowShown

        function test_tabStopsAtTheDayTheButtonAndTheTime(): void {
            test.openAmerican();
            const stops = [];
            for (let i = 0; i < 4; ++i) {
                keyClick(Qt.Key_Tab);
                stops.push(test.focusedName());
            }
            compare(stops, ["monthPart", "monthButton", "hourPart", ""]);
            verify(test.form.after.activeFocus);
            const back = [];
            for (let i = 0; i < 4; ++i) {
                keyClick(Qt.Key_Tab, Qt.ShiftModifier);
                back.push(test.focusedName());
            }
            compare(back, ["hourPart", "monthButton", "monthPart", ""]);
            verify(test.form.before.activeFocus);
        }

        function test_tabFromAnyPartLeavesTheDay(): void {
            test.openAmerican();
            keyClick(Qt.Key_Tab);
            keyClick(Qt.Key_Right);
            keyClick(Qt.Key_Right);
            compare(test.focusedName(), "yearPart");
            keyClick(Qt.Key_Tab);
            compare(test.focusedName(), "monthButton");
            keyClick(Qt.Key_Tab, Qt.ShiftModifier);
            compare(test.focusedName(), "monthPart");
        }

        function test_givenTheFocusAsAWhole_itHasItInTheFirstPart(): void {
            test.openAmerican();
            test.field.forceActiveFocus();
            compare(test.focusedName(), "monthPart");
        }

        function test_digitsGoOnFromPartToPart(): void {
            test.openAmerican();
            keyClick(Qt.Key_Tab);
            test.type("07041999");
            compare(test.focusedName(), "hourPart");
            test.type("945p");
            compare(DateHand.shown(test.date), "7 4 1999 9 45 PM");
            compare(DateHand.secondsOf(test.date), DateHand.utc(1999, 7, 5, 1, 45, 17.25));
        }

        function test_separatorsGoOnAfterShortNumbers(): void {
            test.openGerman();
            keyClick(Qt.Key_Tab);
            test.type("1.2.2027 7:05");
            compare(DateHand.secondsOf(test.date), DateHand.utc(2027, 2, 1, 6, 5, 17.25));
        }

        function test_aSeparatorAfterAFullNumberIsNoSecondStep(): void {
            test.openGerman();
            keyClick(Qt.Key_Tab);
            test.type("24.12.2027");
            compare(DateHand.secondsOf(test.date), DateHand.utc(2027, 12, 24, 8, 30, 17.25));
        }

        function test_arrowsStepAndMove(): void {
            test.openGerman();
            keyClick(Qt.Key_Tab);
            keyClick(Qt.Key_Up);
            keyClick(Qt.Key_Right);
            keyClick(Qt.Key_Down);
            compare(DateHand.shown(test.date), "16 01 2026 09 30");
            keyClick(Qt.Key_Right);
            keyClick(Qt.Key_Right);
            compare(test.focusedName(), "hourPart");
            keyClick(Qt.Key_Right);
            keyClick(Qt.Key_Right);
            compare(test.focusedName(), "minutePart");
            keyClick(Qt.Key_Home);
            compare(test.focusedName(), "dayPart");
            keyClick(Qt.Key_Left);
            compare(test.focusedName(), "dayPart");
            keyClick(Qt.Key_End);
            compare(test.focusedName(), "minutePart");
        }

        function test_arrowsFollowTheScreenFromRightToLeft(): void {
            test.open("ar_EG", "Africa/Cairo", DateHand.utc(2026, 1, 5, 14, 30, 0));
            test.form.LayoutMirroring.enabled = true;
            test.form.LayoutMirroring.childrenInherit = true;
            const x = name => test.part(name).mapToItem(root, 0, 0).x;
            verify(x("day") > x("month"));
            verify(x("month") > x("year"));
            verify(x("year") > x("minute"));
            verify(x("minute") > x("hour"));
            verify(x("hour") > x("dayPeriod"));
            keyClick(Qt.Key_Tab);
            compare(test.focusedName(), "dayPart");
            const passed = [];
            for (let i = 0; i < 5; ++i) {
                keyClick(Qt.Key_Left);
                passed.push(test.focusedName());
            }
            compare(passed, ["monthPart", "yearPart", "minutePart", "hourPart", "dayPeriodPart"]);
            for (let i = 0; i < 5; ++i)
                keyClick(Qt.Key_Right);
            compare(test.focusedName(), "dayPart");
        }

        function test_ownDigitsAreShownAndTaken(): void {
            test.open("ar_EG", "UTC", DateHand.utc(2026, 1, 5, 14, 30, 0));
            compare(DateHand.shown(test.date), "٥ ١ ٢٠٢٦ ٢ ٣٠ م");
            test.enter("day");
            DateHand.type(root.Window.window, "١٧٣");
            compare(DateHand.shown(test.date), "١٧ ٣ ٢٠٢٦ ٢ ٣٠ م");
            compare(DateHand.secondsOf(test.date), DateHand.utc(2026, 3, 17, 14, 30, 0));
        }

        function test_otherCalendarsAreGregorianHere_data(): var {
            return [{
                    "tag": "fa_IR",
                    "shown": "۲۰۲۶ ۱ ۵ ۱۴ ۳۰"
                }, {
                    "tag": "th_TH",
                    "shown": "5 1 2026 14 30"
                }, {
                    "tag": "ja_JP",
                    "shown": "2026 01 05 14 30"
                }];
        }

        function test_otherCalendarsAreGregorianHere(data: var): void {
            test.open(data.tag, "UTC", DateHand.utc(2026, 1, 5, 14, 30, 0));
            compare(DateHand.shown(test.date), data.shown);
        }

        function test_aHalfTypedYearComesBack(): void {
            test.openGerman();
            const seconds = DateHand.secondsOf(test.date);
            test.enter("year");
            test.type("20");
            compare(DateHand.shown(test.date), "15 02 20 09 30");
            compare(DateHand.secondsOf(test.date), seconds);
            keyClick(Qt.Key_Tab);
            compare(DateHand.shown(test.date), "15 02 2026 09 30");
            compare(DateHand.secondsOf(test.date), seconds);
        }

        function test_anImpossibleDayIsShown_untilTheFieldIsLeft(): void {
            test.openGerman();
            const seconds = DateHand.secondsOf(test.date);
            keyClick(Qt.Key_Tab);
            test.type("31");
            compare(test.focusedName(), "monthPart");
            compare(DateHand.shown(test.date), "31 02 2026 09 30");
            verify(test.date.unsettled);
            compare(DateHand.secondsOf(test.date), seconds);
            test.form.after.forceActiveFocus();
            compare(DateHand.shown(test.date), "15 02 2026 09 30");
            compare(DateHand.secondsOf(test.date), seconds);
        }

        function test_anImpossibleMonthKeepsTheKeyboard(): void {
            test.openGerman();
            const seconds = DateHand.secondsOf(test.date);
            test.enter("month");
            test.type("13");
            compare(test.focusedName(), "monthPart");
            compare(DateHand.secondsOf(test.date), seconds);
            test.type("4");
            compare(DateHand.shown(test.date), "15 04 2026 09 30");
        }

        function test_backspaceEmptiesAndGoesBack(): void {
            test.openGerman();
            const seconds = DateHand.secondsOf(test.date);
            test.enter("month");
            keyClick(Qt.Key_Backspace);
            compare(DateHand.shown(test.date), "15 — 2026 09 30");
            compare(DateHand.secondsOf(test.date), seconds);
            keyClick(Qt.Key_Backspace);
            compare(test.focusedName(), "dayPart");
            compare(DateHand.shown(test.date), "15 02 2026 09 30");
        }

        function test_keysOfOthersArePassedOn(): void {
            test.openGerman();
            test.form.parent = behind;
            test.enter("day");
            for (const key of [Qt.Key_Return, Qt.Key_Escape, Qt.Key_F10])
                keyClick(key);
            compare(behind.keys, [Qt.Key_Return, Qt.Key_Escape, Qt.Key_F10]);
        }

        function test_theMouseGivesAPartTheKeyboard(): void {
            test.openGerman();
            mouseClick(test.part("minute"));
            compare(test.focusedName(), "minutePart");
            test.type("45");
            compare(DateHand.shown(test.date), "15 02 2026 09 45");
        }

        function test_theStepperStepsTheTime(): void {
            test.openGerman();
            const stepper = findChild(test.field, "timeStepper");
            mouseClick(stepper, stepper.width / 2, stepper.height / 4);
            compare(DateHand.shown(test.date), "15 02 2026 10 30");
            compare(test.focusedName(), "hourPart");
            mouseClick(test.part("minute"));
            mouseClick(stepper, stepper.width / 2, stepper.height * 3 / 4);
            compare(DateHand.shown(test.date), "15 02 2026 10 29");
        }

        function turnWheel(item: Item, angle: int): void {
            mouseWheel(item, item.width / 2, item.height / 2, 0, angle);
        }

        function test_theWheelStepsThePartThatHasTheKeyboard(): void {
            test.openGerman();
            test.turnWheel(test.part("day"), 120);
            compare(DateHand.shown(test.date), "15 02 2026 09 30");
            test.enter("day");
            test.turnWheel(test.part("day"), 120);
            test.turnWheel(test.part("month"), 120);
            compare(DateHand.shown(test.date), "16 02 2026 09 30");
            for (let i = 0; i < 4; ++i)
                test.turnWheel(test.part("day"), -60);
            compare(DateHand.shown(test.date), "14 02 2026 09 30");
        }

        function test_theWheelOverTheStepperStepsTheTimeThatHasTheKeyboard(): void {
            test.openGerman();
            const stepper = findChild(test.field, "timeStepper");
            test.turnWheel(stepper, 120);
            compare(DateHand.shown(test.date), "15 02 2026 09 30");
            test.enter("minute");
            test.turnWheel(stepper, -120);
            compare(DateHand.shown(test.date), "15 02 2026 09 29");
        }

        function test_copyAndPasteAreForTheWholeDate(): void {
            test.openGerman();
            test.enter("month");
            keySequence(StandardKey.Copy);
            compare(DateHand.clipboard, "2026-02-15 09:30");
            DateHand.clipboard = "1999-07-04 23:59";
            keySequence(StandardKey.Paste);
            compare(DateHand.secondsOf(test.date), DateHand.utc(1999, 7, 4, 21, 59, 17.25));
            compare(DateHand.shown(test.date), "04 07 1999 23 59");
            compare(test.focusedName(), "monthPart");
            DateHand.clipboard = "tomorrow";
            keySequence(StandardKey.Paste);
            compare(DateHand.shown(test.date), "04 07 1999 23 59");
            keySequence(StandardKey.Undo);
            compare(DateHand.secondsOf(test.date), DateHand.utc(2026, 2, 15, 8, 30, 17.25));
            compare(DateHand.shown(test.date), "15 02 2026 09 30");
        }

        function menuItem(name: string): Item {
            return findChild(findChild(test.field, "dateMenu").contentItem, name);
        }

        function test_theMenuHasTheEditingCommands_data(): var {
            return [{
                    "tag": "the menu key",
                    "ask": () => keyClick(Qt.Key_Menu)
                }, {
                    "tag": "Shift and F10",
                    "ask": () => keyClick(Qt.Key_F10, Qt.ShiftModifier)
                }, {
                    "tag": "a secondary click",
                    "ask": () => mouseClick(test.part("day"), 2, 2, Qt.RightButton)
                }];
        }

        function test_theMenuHasTheEditingCommands(data: var): void {
            test.openGerman();
            DateHand.clipboard = "1999-07-04 23:59";
            test.enter("day");
            data.ask();
            tryVerify(() => findChild(test.field, "dateMenu").opened);
            verify(!test.menuItem("undoItem").enabled);
            mouseClick(test.menuItem("pasteItem"));
            compare(DateHand.shown(test.date), "04 07 1999 23 59");
            test.enter("day");
            data.ask();
            tryVerify(() => findChild(test.field, "dateMenu").opened);
            mouseClick(test.menuItem("copyItem"));
            compare(DateHand.clipboard, "1999-07-04 23:59");
            test.enter("day");
            data.ask();
            tryVerify(() => findChild(test.field, "dateMenu").opened);
            mouseClick(test.menuItem("undoItem"));
            compare(DateHand.secondsOf(test.date), DateHand.utc(2026, 2, 15, 8, 30, 17.25));
        }

        function test_withoutADayTheClipboardKeepsWhatItHas(): void {
            test.open("de_DE", "UTC", 1e300);
            DateHand.clipboard = "kept";
            test.enter("day");
            keySequence(StandardKey.Copy);
            compare(DateHand.clipboard, "kept");
            keyClick(Qt.Key_Menu);
            tryVerify(() => findChild(test.field, "dateMenu").opened);
            verify(!test.menuItem("copyItem").enabled);
        }

        // The texts of a frame's parts from left to right, with the blank before each.
        function texts(frame: string): var {
            const found = [];
            const look = item => {
                if (item.text !== undefined && item.text !== "" && item.visible)
                    found.push(item.mapToItem(root, 0, 0, item.width, item.height));
                for (let i = 0; i < item.children.length; ++i)
                    look(item.children[i]);
            };
            look(findChild(test.field, frame));
            return found.sort((a, b) => a.x - b.x);
        }

        function test_partsStandEvenly_data(): var {
            return ["en_GB", "en_US", "de_DE", "ar_EG", "ja_JP"].map(locale => ({
                            "tag": locale
                        }));
        }

        function test_partsStandEvenly(data: var): void {
            test.open(data.tag, "UTC", DateHand.utc(2026, 5, 24, 14, 30, 0));
            waitForRendering(test.field);
            const places = test.texts("dayParts");
            verify(places.length >= 5);
            // Between a number and what separates it from the next, the same on both sides.
            const gaps = [];
            for (let i = 1; i < 5; ++i)
                gaps.push(places[i].x - Math.ceil(places[i - 1].right));
            for (const gap of gaps)
                fuzzyCompare(gap, gaps[0], 0.5, gaps.join(" "));
            for (const place of places)
                compare(place.x, Math.round(place.x));
        }

        function test_theFrameStaysAsItIsWhileNumbersChange(): void {
            test.openAmerican();
            const frame = findChild(test.field, "dayParts");
            const width = frame.width;
            for (const seconds of [DateHand.utc(2026, 12, 30, 0, 0, 0), DateHand.utc(1111, 1, 1, 0, 0, 0), 1e300]) {
                test.date.date = DateHand.postDate("en_US", "UTC", seconds).date;
                // Rows place their items before they are drawn.
                grabImage(frame);
                compare(frame.width, width);
            }
        }

        function test_aDateThatNoCalendarReaches(): void {
            for (const seconds of [1e300, NaN, -Infinity]) {
                test.open("de_DE", "UTC", seconds);
                compare(DateHand.shown(test.date), "— — — — —");
                for (let i = 0; i < 4; ++i)
                    keyClick(Qt.Key_Tab);
                compare(DateHand.secondsOf(test.date), seconds);
            }
        }

        function test_theTimeGoesBeneathWhereThereIsNoRoom(): void {
            test.openAmerican();
            const oneLine = test.field.implicitHeight;
            verify(test.field.implicitWidth <= 620);
            test.form.width = test.field.implicitWidth - 1;
            tryVerify(() => test.field.implicitHeight > 2 * oneLine);
            compare(test.part("hour").mapToItem(test.field, 0, 0).x < 20, true);
        }

        function test_fitsAtTwiceTheTextSize(): void {
            test.openAmerican();
            DateHand.setTextSize(26);
            tryVerify(() => Theme.bodySize === 26);
            verify(test.field.implicitWidth <= 620);
            DateHand.setTextSize(13);
            tryVerify(() => Theme.bodySize === 13);
        }

        function test_assistiveToolsReadThatAPartIsEmpty(): void {
            test.open("de_DE", "UTC", 1e300);
            compare(DateHand.accessible(test.part("day")).description, "Empty");
            compare(DateHand.accessible(test.part("month")).description, "Empty");
            DateHand.setValue(test.part("month"), 3);
            compare(DateHand.accessible(test.part("month")).description, "März");
        }

        function test_assistiveToolsReadAndSetTheParts(): void {
            test.openAmerican();
            compare(DateHand.accessible(test.field).role, "Grouping");
            compare(DateHand.accessible(test.field).name, "Date");
            compare(DateHand.accessible(test.field).description, "Monday, January 5, 2026");
            const names = {
                "year": "Year",
                "month": "Month",
                "day": "Day",
                "hour": "Hour",
                "minute": "Minute",
                "dayPeriod": "AM/PM"
            };
            for (const name in names) {
                const seen = DateHand.accessible(test.part(name));
                compare(seen.role, "SpinBox");
                compare(seen.name, names[name]);
                verify(seen.focusable);
            }
            compare(DateHand.accessible(test.part("month")).description, "January");
            compare(DateHand.accessible(test.part("dayPeriod")).description, "AM");
            compare(DateHand.accessible(test.part("day")).value, 5);
            compare(DateHand.accessible(test.part("day")).minimum, 1);
            compare(DateHand.accessible(test.part("day")).maximum, 31);
            DateHand.setValue(test.part("day"), 28);
            DateHand.setValue(test.part("dayPeriod"), 1);
            compare(DateHand.shown(test.date), "1 28 2026 9 30 PM");
            DateHand.setValue(test.part("minute"), 99);
            compare(DateHand.accessible(test.part("minute")).value, 59);
            verify(DateHand.act(test.part("month"), "Increase"));
            verify(DateHand.act(test.part("hour"), "Decrease"));
            compare(DateHand.shown(test.date), "2 28 2026 8 59 PM");
            test.enter("hour");
            verify(DateHand.accessible(test.part("hour")).focused);
            verify(!DateHand.accessible(test.part("minute")).focused);
        }
    }
}
