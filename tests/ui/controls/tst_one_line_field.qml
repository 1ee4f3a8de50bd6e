import QtQuick
import QtQuick.Controls.Basic
import QtTest
import Tavlo
import TavloTest

// A menu gives the focus back to the content of an ApplicationWindow, which the test's own window
// is not.
Item {
    id: stage

    ApplicationWindow {
        id: window

        width: 500
        height: 400
        visible: true

        FocusScope {
            id: root

            property int returns: 0
            property int enters: 0
            property int escapes: 0

            anchors.fill: parent
            focus: true
            Keys.onReturnPressed: ++root.returns
            Keys.onEnterPressed: ++root.enters
            Keys.onEscapePressed: ++root.escapes

            PushButton {
                id: before

                text: "Before"
            }

            OneLineField {
                id: field

                y: 60
                width: 300
                label: "Title & more"
                placeholderText: "Type here"
            }

            PushButton {
                id: after

                y: 120
                text: "After"
            }
        }
    }

    TestCase {
        id: test

        // The field's menu, once it was asked for.
        function menu(): EditMenu {
            return findChild(field, "editMenu") as EditMenu;
        }

        function item(name: string): AppMenuItem {
            return findChild(menu().contentItem, name) as AppMenuItem;
        }

        function openMenu(): void {
            keyClick(Qt.Key_Menu);
            tryVerify(() => menu() && menu().opened);
        }

        function init(): void {
            field.text = "";
            field.enabled = true;
            field.forceActiveFocus();
            root.returns = 0;
            root.enters = 0;
            root.escapes = 0;
        }

        function cleanup(): void {
            if (menu()) {
                menu().close();
                tryCompare(menu(), "visible", false);
            }
        }

        function test_typing(): void {
            keyClick("a");
            keyClick("B");
            compare(field.text, "aB");
            keyClick(Qt.Key_Backspace);
            compare(field.text, "a");
        }

        function test_everyCharacter_isKept_data(): var {
            return ["a\u00a0b", "a\rb", "a\r\nb", "a\nb", "a\u2028b", "a\u2029b", "a\ufdd0b", "a\u0000b", "\ufeffa", "a\tb"].map(text => ({
                            "tag": JSON.stringify(text),
                            "text": text
                        }));
        }

        function test_everyCharacter_isKept(data: var): void {
            field.text = data.text;
            compare(field.text, data.text);
            field.text = "";
            Assistive.clipboard = data.text;
            keySequence(StandardKey.Paste);
            compare(field.text, Assistive.clipboard);
            keyClick("x");
            compare(field.text, Assistive.clipboard + "x");
        }

        function test_longTexts_areKeptWhole(): void {
            const text = "0123456789".repeat(20000);
            field.text = text;
            compare(field.text.length, 200000);
            field.selectAll();
            Assistive.clipboard = text + "!";
            keySequence(StandardKey.Paste);
            compare(field.text.length, 200001);
            keyClick("?");
            compare(field.text.length, 200002);
        }

        function test_undo(): void {
            field.text = "start";
            verify(!field.canUndo);
            field.selectAll();
            keyClick("x");
            compare(field.text, "x");
            keySequence(StandardKey.Undo);
            compare(field.text, "start");
        }

        function test_returnAndEscape_areLeftToTheSheet(): void {
            keyClick(Qt.Key_Return);
            keyClick(Qt.Key_Enter);
            keyClick(Qt.Key_Escape);
            compare(root.returns, 1);
            compare(root.enters, 1);
            compare(root.escapes, 1);
            compare(field.text, "");
        }

        function test_tab_leaves(): void {
            keyClick(Qt.Key_Tab);
            verify(after.activeFocus);
            keyClick(Qt.Key_Tab, Qt.ShiftModifier);
            verify(field.activeFocus);
            keyClick(Qt.Key_Tab, Qt.ShiftModifier);
            verify(before.activeFocus);
        }

        function test_mouse_selects(): void {
            field.text = "some words to select";
            mousePress(field, 15, field.height / 2);
            mouseMove(field, 50, field.height / 2);
            mouseMove(field, 90, field.height / 2);
            mouseRelease(field, 90, field.height / 2);
            verify(field.selectedText.length > 0);
        }

        function test_menu_opensByKey_data(): var {
            return [{
                    "tag": "menu key",
                    "key": Qt.Key_Menu,
                    "modifier": Qt.NoModifier
                }, {
                    "tag": "Shift+F10",
                    "key": Qt.Key_F10,
                    "modifier": Qt.ShiftModifier
                }];
        }

        function test_menu_opensByKey(data: var): void {
            field.text = "some words";
            field.select(2, 6);
            keyClick(data.key, data.modifier);
            tryVerify(() => menu() && menu().opened);
            compare(field.selectedText, "me w");
            keyClick(Qt.Key_Escape);
            tryCompare(menu(), "visible", false);
            verify(field.activeFocus);
            compare(field.selectedText, "me w");
            compare(root.escapes, 0);
        }

        function test_menu_opensBySecondaryClick_besideThePointer(): void {
            field.text = "some words";
            after.forceActiveFocus();
            mouseClick(field, 30, 10, Qt.RightButton);
            tryVerify(() => menu() && menu().opened);
            fuzzyCompare(menu().x, 30, 1);
            fuzzyCompare(menu().y, 10, 1);
            keyClick(Qt.Key_Escape);
            tryCompare(menu(), "visible", false);
            verify(field.activeFocus);
        }

        function test_secondaryClick_keepsASelectionUnderIt_andMovesTheCursorElsewhere(): void {
            field.text = "some words and more";
            field.select(0, 10);
            const inside = field.positionToRectangle(3);
            mouseClick(field, inside.x, inside.y + 4, Qt.RightButton);
            tryVerify(() => menu() && menu().opened);
            compare(field.selectedText, "some words");
            keyClick(Qt.Key_Escape);
            tryCompare(menu(), "visible", false);
            mouseClick(field, 120, 12);
            const position = field.cursorPosition;
            verify(position > 11);
            field.select(0, 10);
            mouseClick(field, 120, 12, Qt.RightButton);
            tryVerify(() => menu().opened);
            compare(field.selectedText, "");
            compare(field.cursorPosition, position);
        }

        function test_menu_offersWhatIsPossible(): void {
            Assistive.clipboard = "";
            openMenu();
            for (const name of ["undoItem", "redoItem", "cutItem", "copyItem", "selectAllItem"])
                verify(!item(name).enabled, name);
            menu().close();
            tryCompare(menu(), "visible", false);
            Assistive.clipboard = "words";
            keySequence(StandardKey.Paste);
            field.selectAll();
            openMenu();
            for (const name of ["undoItem", "cutItem", "copyItem", "pasteItem", "selectAllItem"])
                verify(item(name).enabled, name);
        }

        function test_menu_works(): void {
            field.text = "words";
            openMenu();
            mouseClick(item("selectAllItem"));
            tryCompare(menu(), "visible", false);
            verify(field.activeFocus);
            compare(field.selectedText, "words");
            openMenu();
            mouseClick(item("copyItem"));
            tryCompare(menu(), "visible", false);
            compare(Assistive.clipboard, "words");
            compare(field.selectedText, "words");
            Assistive.clipboard = "";
            openMenu();
            mouseClick(item("cutItem"));
            tryCompare(menu(), "visible", false);
            compare(Assistive.clipboard, "words");
            compare(field.text, "");
            openMenu();
            mouseClick(item("pasteItem"));
            tryCompare(menu(), "visible", false);
            compare(field.text, "words");
            openMenu();
            mouseClick(item("undoItem"));
            tryCompare(menu(), "visible", false);
            compare(field.text, "");
            verify(field.activeFocus);
            openMenu();
            mouseClick(item("redoItem"));
            tryCompare(menu(), "visible", false);
            compare(field.text, "words");
        }

        function test_menu_opensByLongPress_onTheWordUnderIt(): void {
            field.text = "some words";
            after.forceActiveFocus();
            const place = field.positionToRectangle(7);
            const touch = touchEvent(field);
            touch.press(0, field, place.x, place.y + 4).commit();
            wait(Application.styleHints.mousePressAndHoldInterval + 100);
            touch.release(0, field, place.x, place.y + 4).commit();
            tryVerify(() => menu() && menu().opened);
            compare(field.selectedText, "words");
            mouseClick(item("cutItem"));
            tryCompare(menu(), "visible", false);
            compare(field.text, "some ");
            verify(field.activeFocus);
        }

        function test_menu_staysAwayFromAFingerThatMoves(): void {
            field.text = "some words";
            const touch = touchEvent(field);
            touch.press(0, field, 20, 15).commit();
            wait(Application.styleHints.mousePressAndHoldInterval + 100);
            touch.move(0, field, 120, 15).commit();
            touch.release(0, field, 120, 15).commit();
            wait(100);
            verify(!menu() || !menu().visible);
        }

        function test_menu_staysAwayFromALongPressOfTheMouse(): void {
            field.text = "some words";
            mousePress(field, 20, 15);
            wait(Application.styleHints.mousePressAndHoldInterval + 100);
            mouseRelease(field, 20, 15);
            wait(100);
            verify(!menu() || !menu().visible);
        }

        function test_menu_staysAwayFromAShortTouch(): void {
            field.text = "some words";
            const touch = touchEvent(field);
            touch.press(0, field, 20, 15).commit();
            touch.release(0, field, 20, 15).commit();
            wait(Application.styleHints.mousePressAndHoldInterval + 100);
            verify(!menu() || !menu().visible);
            verify(field.activeFocus);
        }

        function test_assistiveTools_seeIt(): void {
            compare(Assistive.role(field), Accessible.EditableText);
            compare(Assistive.name(field), "Title & more");
            const states = Assistive.states(field);
            for (const state of ["focusable", "focused", "editable"])
                verify(states.includes(state), state);
            verify(!states.includes("multiLine"));
        }

        function test_outline_isARing_whileItHasTheFocus(): void {
            compare(field.background.border.color, Theme.focusRing);
            compare(field.background.border.width, Theme.focusWidth);
            after.forceActiveFocus();
            compare(field.background.border.color, Theme.border);
            compare(field.background.border.width, 1);
        }

        function test_placeholder_showsWhileItIsEmpty(): void {
            const placeholder = findChild(field, "placeholder");
            compare(placeholder.text, "Type here");
            verify(placeholder.visible);
            keyClick("a");
            verify(!placeholder.visible);
        }

        function test_height_isThatOfThePlaceholderWhileItShows(): void {
            const height = field.implicitHeight;
            field.width = 60;
            tryVerify(() => field.implicitHeight > 1.5 * height);
            keyClick("a");
            compare(field.implicitHeight, height);
            field.width = 300;
        }

        // A text that is cut is cut at the paddings, the upper and the lower ones too.
        function test_cutText_hasRoomForMarksAboveAndBelowTheLine(): void {
            field.text = "many words ".repeat(100);
            verify(field.topPadding <= Theme.focusWidth);
            verify(field.bottomPadding <= Theme.focusWidth);
            compare(field.height, Math.ceil(field.contentHeight) + 2 * Theme.controlPadding);
            compare(field.cursorRectangle.y + field.cursorRectangle.height / 2, field.height / 2);
        }

        function test_cutText_fadesOut_unlessTheCursorIsInIt_data(): var {
            return [{
                    "tag": "from the left",
                    "text": "many words ",
                    "right": true
                }, {
                    "tag": "from the right",
                    "text": "שלום עולם ",
                    "right": false
                }];
        }

        function test_cutText_fadesOut_unlessTheCursorIsInIt(data: var): void {
            const fade = findChild(field, "fade");
            field.text = data.text;
            after.forceActiveFocus();
            verify(!fade.visible);
            field.text = data.text.repeat(100);
            verify(fade.visible);
            compare(fade.x > field.width / 2, data.right);
            compare(fade.edge, data.right ? Qt.RightEdge : Qt.LeftEdge);
            field.forceActiveFocus();
            verify(!fade.visible);
        }

        function test_alignment_followsTheText(): void {
            field.text = "left";
            compare(field.effectiveHorizontalAlignment, TextInput.AlignLeft);
            field.text = "שלום";
            compare(field.effectiveHorizontalAlignment, TextInput.AlignRight);
        }

        function test_longText_isSeenFromItsStart_untilTheCursorIsInIt(): void {
            const text = "many words ".repeat(100);
            after.forceActiveFocus();
            field.text = text;
            compare(field.positionAt(0, 10), 0);
            field.width = 250;
            compare(field.positionAt(0, 10), 0);
            field.width = 300;
            compare(field.positionAt(0, 10), 0);
            field.forceActiveFocus();
            compare(field.cursorPosition, text.length);
            verify(field.positionAt(field.width, 10) >= text.length - 1);
            after.forceActiveFocus();
            compare(field.positionAt(0, 10), 0);
        }

        function test_height_growsWithTheText(): void {
            const height = field.implicitHeight;
            Assistive.setFontSize(26);
            tryVerify(() => field.implicitHeight > 1.4 * height);
            Assistive.setFontSize(13);
            tryCompare(field, "implicitHeight", height);
        }

        name: "OneLineField"
        when: window.active
    }
}
