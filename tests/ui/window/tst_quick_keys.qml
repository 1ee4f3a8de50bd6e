import QtQuick
import QtTest
import Tavlo
import TavloTest

// Keys that are pressed before what they follow has left the screen.
WindowCase {
    id: root

    // Chooses a command of the first card's menu: the one below so many others.
    function choose(below: int): void {
        part("postList").forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Menu);
        tryVerify(() => shownText("Delete Post"));
        for (let i = 0; i < below; ++i)
            keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Return);
    }

    function init(): void {
        openWindow([{
                    "title": "One"
                }, {
                    "title": "Two"
                }]);
    }

    function test_aShortcutAfterACommandOfTheMenu(): void {
        choose(1);
        keySequence("Ctrl+E");
        compare(titles(), ["Two"]);
        waitUntilOpen("exportSheet");
    }

    function test_escapeAfterADismissedMenu_isNoneOfTheMenus(): void {
        part("postList").forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Menu);
        tryVerify(() => shownText("Delete Post"));
        keyClick(Qt.Key_Escape);
        keySequence("Ctrl+N");
        waitUntilOpen("editorSheet");
    }

    function test_twoEscapes_closeTheMonthAndTheForm(): void {
        openSheet("editorSheet");
        mouseClick(control("editorSheet", "monthButton"));
        const month = findChild(control("editorSheet", "monthButton"), "monthPopup");
        tryCompare(month, "opened", true);
        keyClick(Qt.Key_Escape);
        keyClick(Qt.Key_Escape);
        compare(root.view.showingEditor, false);
        waitUntilGone("editorSheet");
    }

    function test_theMonthGivesItsButtonTheKeyboardBack(): void {
        openSheet("editorSheet");
        const button = control("editorSheet", "monthButton");
        const month = findChild(button, "monthPopup");
        control("editorSheet", "dateField").forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Tab);
        verify(button.activeFocus);
        for (let i = 0; i < 2; ++i) {
            keyClick(Qt.Key_Space);
            tryCompare(month, "opened", true);
            keyClick(Qt.Key_Escape);
            verify(button.activeFocus);
            verify(findChild(button, "focusRing").visible);
        }
        keyClick(Qt.Key_Escape);
        compare(root.view.showingEditor, false);
    }

    function test_aClickBesideTheMonth_givesAnotherFieldTheKeyboard(): void {
        openSheet("editorSheet");
        const button = control("editorSheet", "monthButton");
        mouseClick(button);
        const month = findChild(button, "monthPopup");
        tryCompare(month, "opened", true);
        const field = control("editorSheet", "titleField");
        mouseClick(field);
        type("a");
        tryCompare(month, "visible", false);
        type("b");
        compare(field.text, "ab");
    }

    function test_theDatesMenuGivesThePartThatWasClickedTheKeyboard(): void {
        openSheet("editorSheet");
        const part = control("editorSheet", "minutePart");
        mouseClick(part, part.width / 2, part.height / 2, Qt.RightButton);
        tryCompare(findChild(form("editorSheet"), "dateMenu"), "opened", true);
        keyClick(Qt.Key_Escape);
        verify(part.activeFocus);
        keyClick(Qt.Key_Escape);
        compare(root.view.showingEditor, false);
    }

    name: "QuickKeys"
}
