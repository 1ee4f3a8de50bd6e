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

            property int escapes: 0

            anchors.fill: parent
            focus: true
            Keys.onEscapePressed: ++root.escapes

            PushButton {
                id: before

                text: "Before"
            }

            MultiLineField {
                id: field

                y: 60
                width: 300
                height: 100
                label: "Description"
            }

            PushButton {
                id: after

                y: 200
                text: "After"
            }

            Component {
                id: fieldComponent

                MultiLineField {
                    source: "given\r\nat\u00a0once"
                }
            }

            SignalSpy {
                id: changes

                target: field
                signalName: "exactTextChanged"
            }
        }
    }

    TestCase {
        id: test

        readonly property Item area: field.textArea

        function view(): Flickable {
            return findChild(field, "view") as Flickable;
        }

        function menu(): EditMenu {
            return findChild(test.area, "editMenu") as EditMenu;
        }

        function init(): void {
            field.enabled = true;
            field.source = "";
            field.load();
            field.forceActiveFocus();
            root.escapes = 0;
        }

        function cleanup(): void {
            if (menu()) {
                menu().close();
                tryCompare(menu(), "visible", false);
            }
        }

        function test_focus_goesToTheText(): void {
            verify(test.area.activeFocus);
            after.forceActiveFocus();
            mouseClick(field);
            verify(test.area.activeFocus);
        }

        function test_typing_isGivenBack(): void {
            changes.clear();
            keyClick("a");
            keyClick(Qt.Key_Return);
            keyClick("b");
            compare(field.exactText, "a\nb");
            verify(changes.count >= 3);
        }

        function test_shiftReturn_isALineFeedToo(): void {
            keyClick("a");
            keyClick(Qt.Key_Return, Qt.ShiftModifier);
            keyClick("b");
            compare(field.exactText, "a\nb");
            test.area.selectAll();
            keyClick(Qt.Key_Enter, Qt.ShiftModifier);
            compare(field.exactText, "\n");
        }

        function test_unchanged_isGivenBackAsItWas_data(): var {
            return ["", "a", "a\u00a0b", "a\rb", "a\r\nb\r\n", "a\u2028b", "a\u2029b", "a\ufdd0b", "a\u0000b", "\ufeffa", "<b>a</b>"].map(text => ({
                            "tag": JSON.stringify(text),
                            "text": text
                        }));
        }

        function test_unchanged_isGivenBackAsItWas(data: var): void {
            field.source = data.text;
            compare(field.exactText, data.text);
            keyClick("x");
            verify(field.exactText !== data.text);
            keyClick(Qt.Key_Backspace);
            compare(field.exactText, data.text);
            keyClick("x");
            keySequence(StandardKey.Undo);
            compare(field.exactText, data.text);
        }

        function test_edited_keepsNoBreakSpacesAndLineSeparators(): void {
            field.source = "a\u00a0b\u2028c\r\nd\re";
            keySequence(StandardKey.MoveToEndOfDocument);
            keyClick("!");
            compare(field.exactText, "a\u00a0b\u2028c\nd\ne!");
        }

        function test_pasted_keepsNoBreakSpaces(): void {
            Assistive.clipboard = "a\u00a0b";
            keySequence(StandardKey.Paste);
            compare(field.exactText, "a\u00a0b");
        }

        function test_source_givenAtOnce(): void {
            const early = createTemporaryObject(fieldComponent, root);
            compare(early.exactText, "given\r\nat\u00a0once");
            compare(early.textArea.lineCount, 2);
        }

        function test_source_isNoUndoStep(): void {
            field.source = "start";
            verify(!test.area.canUndo);
            keyClick("x");
            keySequence(StandardKey.Undo);
            compare(field.exactText, "start");
            verify(!test.area.canUndo);
        }

        function test_tab_leaves_andTypesNothing(): void {
            keyClick(Qt.Key_Tab);
            verify(after.activeFocus);
            verify(after.visualFocus);
            keyClick(Qt.Key_Tab, Qt.ShiftModifier);
            verify(test.area.activeFocus);
            keyClick(Qt.Key_Tab, Qt.ShiftModifier);
            verify(before.activeFocus);
            verify(before.visualFocus);
            compare(field.exactText, "");
        }

        function test_escape_isLeftToTheSheet(): void {
            keyClick(Qt.Key_Escape);
            compare(root.escapes, 1);
        }

        function test_longText_scrolls(): void {
            field.source = "line\n".repeat(200);
            keySequence(StandardKey.MoveToEndOfDocument);
            tryVerify(() => view().contentY > 0 && view().atYEnd);
            keySequence(StandardKey.MoveToStartOfDocument);
            tryVerify(() => view().atYBeginning);
            mouseWheel(field, 100, 50, 0, -240);
            tryVerify(() => view().contentY > 0);
        }

        function test_longWord_wraps(): void {
            field.source = "w".repeat(2000);
            tryVerify(() => test.area.lineCount > 10);
            verify(test.area.width <= field.width);
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
            field.source = "some words";
            test.area.select(2, 6);
            keyClick(data.key, data.modifier);
            tryVerify(() => menu() && menu().opened);
            compare(test.area.selectedText, "me w");
            keyClick(Qt.Key_Escape);
            tryCompare(menu(), "visible", false);
            verify(test.area.activeFocus);
            compare(test.area.selectedText, "me w");
            compare(root.escapes, 0);
        }

        function test_menu_bySecondaryClick_works(): void {
            field.source = "some words";
            mouseClick(test.area, 30, 12, Qt.RightButton);
            tryVerify(() => menu() && menu().opened);
            mouseClick(findChild(menu().contentItem, "selectAllItem"));
            tryCompare(menu(), "visible", false);
            compare(test.area.selectedText, "some words");
            verify(test.area.activeFocus);
            const inside = test.area.positionToRectangle(3);
            mouseClick(test.area, inside.x, inside.y + 4, Qt.RightButton);
            tryVerify(() => menu().opened);
            compare(test.area.selectedText, "some words");
            mouseClick(findChild(menu().contentItem, "cutItem"));
            tryCompare(menu(), "visible", false);
            compare(field.exactText, "");
            compare(Assistive.clipboard, "some words");
        }

        function test_menu_redoes(): void {
            keyClick("a");
            test.area.undo();
            compare(field.exactText, "");
            keyClick(Qt.Key_Menu);
            tryVerify(() => menu() && menu().opened);
            mouseClick(findChild(menu().contentItem, "redoItem"));
            tryCompare(menu(), "visible", false);
            compare(field.exactText, "a");
        }

        function test_menu_opensByLongPress_onTheWordUnderIt(): void {
            field.source = "some words";
            const place = test.area.positionToRectangle(7);
            const touch = touchEvent(test.area);
            touch.press(0, test.area, place.x, place.y + 4).commit();
            wait(Application.styleHints.mousePressAndHoldInterval + 100);
            touch.release(0, test.area, place.x, place.y + 4).commit();
            tryVerify(() => menu() && menu().opened);
            compare(test.area.selectedText, "words");
        }

        function test_outline(): void {
            const outline = findChild(field, "outline");
            compare(outline.radius, 8);
            compare(outline.border.color, Theme.border);
            compare(outline.width, field.width);
            compare(outline.height, field.height);
        }

        function test_ring_showsTheFocus(): void {
            const ring = findChild(field, "focusRing");
            verify(ring.visible);
            after.forceActiveFocus();
            verify(!ring.visible);
        }

        function test_assistiveTools_seeIt(): void {
            compare(Assistive.role(test.area), Accessible.EditableText);
            compare(Assistive.name(test.area), "Description");
            const states = Assistive.states(test.area);
            for (const state of ["focusable", "focused", "editable", "multiLine"])
                verify(states.includes(state), state);
        }

        name: "MultiLineField"
        when: window.active
    }
}
