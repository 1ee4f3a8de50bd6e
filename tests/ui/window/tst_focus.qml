import QtQuick
import QtTest
import Tavlo
import TavloTest

// Where the focus is after what took it has gone, and that it is to be seen when keys are used.
WindowCase {
    id: root

    function openWithPosts(titles: var): void {
        openWindow(titles.map(title => ({
                            "title": title,
                            "content": "c"
                        })));
    }

    // An item has the focus, with a ring around it or without.
    function verifyFocus(item: Item, ring: bool): void {
        tryCompare(item, "activeFocus", true);
        compare(findChild(item, "focusRing").visible, ring);
    }

    function closeSheet(name: string): void {
        waitUntilOpen(name);
        keyClick(Qt.Key_Escape);
        waitUntilGone(name);
    }

    function openMenuByMouse(card: Item): void {
        mouseClick(card, 60, 30, Qt.RightButton);
        tryCompare(part("cardMenu"), "opened", true);
    }

    function openMenuByKey(card: Item): void {
        card.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Menu);
        tryCompare(part("cardMenu"), "opened", true);
    }

    function test_afterASheetThatAKeyOpened_theRingIsBack(): void {
        openWithPosts([]);
        const button = part("settingsButton");
        button.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Space);
        closeSheet("settingsSheet");
        verifyFocus(button, true);
    }

    function test_afterASheetThatAClickOpened_thereIsNoRing(): void {
        openWithPosts([]);
        const button = part("settingsButton");
        mouseClick(button);
        closeSheet("settingsSheet");
        verifyFocus(button, false);
    }

    function test_afterAnEditThatKeysAskedFor_theCardsRingIsBack(): void {
        openWithPosts(["A", "B"]);
        const card = cards()[0];
        openMenuByKey(card);
        keyClick(Qt.Key_Return);
        closeSheet("editorSheet");
        verifyFocus(card, true);
    }

    function test_afterAnEditThatTheMouseAskedFor_theCardHasNoRing(): void {
        openWithPosts(["A", "B"]);
        const card = cards()[0];
        openMenuByMouse(card);
        mouseClick(part("cardMenu").itemAt(0));
        closeSheet("editorSheet");
        verifyFocus(card, false);
    }

    function test_afterASheet_theListStaysWhereItWas(): void {
        openWindow([{
                    "title": "Long",
                    "content": "c",
                    "description": "line\n".repeat(200)
                }]);
        const list = part("postList");
        cards()[0].forceActiveFocus(Qt.TabFocusReason);
        for (let i = 0; i < 3; ++i)
            keyClick(Qt.Key_Down);
        wait(2 * Theme.duration);
        const place = list.contentY;
        verify(place > 100);
        keySequence("Ctrl+N");
        closeSheet("editorSheet");
        wait(2 * Theme.duration);
        compare(list.contentY, place);
        verifyFocus(cards()[0], true);
    }

    function test_whenTheLastPostIsDeletedByKeys_theRingIsAroundNewPost(): void {
        openWithPosts(["A"]);
        openMenuByKey(cards()[0]);
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Return);
        tryCompare(part("cardMenu"), "visible", false);
        compare(titles(), []);
        verifyFocus(part("newPostButton"), true);
    }

    function test_whenTheLastPostIsDeletedByTheMouse_newPostHasNoRing(): void {
        openWithPosts(["A"]);
        openMenuByMouse(cards()[0]);
        mouseClick(part("cardMenu").itemAt(1));
        tryCompare(part("cardMenu"), "visible", false);
        compare(titles(), []);
        verifyFocus(part("newPostButton"), false);
    }

    function test_aKeyThatOpensACardsMenuPressesNoCommand_data(): var {
        return [{
                "tag": "Return",
                "key": Qt.Key_Return
            }, {
                "tag": "Space",
                "key": Qt.Key_Space
            }];
    }

    function test_aKeyThatOpensACardsMenuPressesNoCommand(data: var): void {
        openWithPosts(["A"]);
        cards()[0].forceActiveFocus(Qt.TabFocusReason);
        Probe.hold(root.app, data.key, Qt.NoModifier, 20);
        tryCompare(part("cardMenu"), "opened", true);
        wait(Theme.shortDuration);
        compare(root.view.showingEditor, false);
        compare(titles(), ["A"]);
        keyClick(data.key);
        waitUntilOpen("editorSheet");
        compare(sheetTitle("editorSheet"), "Edit Post");
    }

    name: "Focus"
}
