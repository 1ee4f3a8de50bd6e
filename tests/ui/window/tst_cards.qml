import QtQuick
import QtTest
import Tavlo
import TavloTest

// The cards' menus in the whole window, over a store that goes on while they are open.
WindowCase {
    id: root

    readonly property string oneId: "11111111-1111-4111-8111-111111111111"
    readonly property string otherId: "22222222-2222-4222-8222-222222222222"

    function post(id: string, title: string): var {
        return {
            "id": id,
            "title": title,
            "content": "c",
            "description": "About " + title,
            "permalink": "https://blog.example/" + title
        };
    }

    function cardOf(title: string): Item {
        return cards().find(card => card.title === title);
    }

    function openMenuOf(title: string): void {
        mouseClick(cardOf(title), 60, 30, Qt.RightButton);
        tryCompare(part("cardMenu"), "opened", true);
    }

    function choose(command: string): void {
        const menu = part("cardMenu");
        for (let i = 0; i < menu.count; ++i) {
            if (menu.itemAt(i).text === command)
                mouseClick(menu.itemAt(i));
        }
        tryCompare(menu, "visible", false);
    }

    function importFeed(title: string): void {
        Probe.write("in.xml", `<rss><channel><item><title>${title}</title><link>l</link><description>d</description></item></channel></rss>`);
        root.store.importRSSFeed(Probe.home + "/in.xml");
        tryVerify(() => titles().length === 1 && titles()[0] === title);
    }

    function verifyEditorShows(title: string): void {
        waitUntilOpen("editorSheet");
        compare(sheetTitle("editorSheet"), "Edit Post");
        compare(control("editorSheet", "titleField").text, title);
        compare(control("editorSheet", "textArea").text, "About " + title);
        compare(control("editorSheet", "permalinkField").text, "https://blog.example/" + title);
    }

    function test_editPost_showsThePostAsItsCardHadIt(): void {
        openWindow([post(root.oneId, "One"), post(root.otherId, "Other")]);
        openMenuOf("One");
        Probe.setPosts(root.store, [post(root.oneId, "Later"), post(root.otherId, "Other")]);
        choose("Edit Post");
        verifyEditorShows("One");
        keySequence("Ctrl+Return");
        compare(titles(), ["One", "Other"]);
    }

    function test_editPost_ofAPostThatAnImportReplaced_showsIt(): void {
        openWindow([post(root.oneId, "One")]);
        openMenuOf("One");
        importFeed("Imported");
        choose("Edit Post");
        verifyEditorShows("One");
        // There is no post left to take the change.
        keySequence("Ctrl+Return");
        compare(titles(), ["Imported"]);
    }

    function test_deletePost_ofAPostThatWasChanged_deletesIt(): void {
        openWindow([post(root.oneId, "One"), post(root.otherId, "Other")]);
        openMenuOf("One");
        Probe.setPosts(root.store, [post(root.otherId, "Other"), post(root.oneId, "Later")]);
        choose("Delete Post");
        compare(titles(), ["Other"]);
    }

    function test_deletePost_ofAPostThatHasGone_doesNothing(): void {
        openWindow([post(root.oneId, "One"), post(root.otherId, "Other")]);
        openMenuOf("One");
        Probe.setPosts(root.store, [post(root.otherId, "Other")]);
        const before = Probe.stateOf("posts.json");
        choose("Delete Post");
        compare(titles(), ["Other"]);
        compare(Probe.stateOf("posts.json"), before);
    }

    function test_ofTwoPostsWithOneId_anEditOfTheSecondChangesTheFirst(): void {
        openWindow([post(root.oneId, "First"), post(root.oneId, "Second")]);
        openMenuOf("Second");
        choose("Edit Post");
        verifyEditorShows("Second");
        keyClick(Qt.Key_End);
        type("!");
        keySequence("Ctrl+Return");
        compare(titles(), ["Second!", "Second"]);
        tryVerify(() => cardOf("Second!") && cardOf("Second"));
        verify(place(cardOf("Second!")).top < place(cardOf("Second")).top);
    }

    function test_aLongDescriptionIsNeverCut(): void {
        const words = "A few words in a row. ".repeat(400) + "The end.";
        openWindow([Object.assign(post(root.oneId, "Long"), {
                        "description": words
                    })]);
        const card = cardOf("Long");
        const text = findChild(card, "description").children[0];
        compare(text.text, words);
        compare(text.truncated, false);
        compare(text.elide, Text.ElideNone);
        verify(text.lineCount > 20);
        verify(text.contentWidth <= text.width);
        verify(text.height >= text.contentHeight);
        const frame = place(text);
        verify(frame.bottom < place(findChild(card, "date")).top);
        verify(place(findChild(card, "date")).bottom <= place(card).bottom - Theme.padding);
        verify(card.height > root.view.height, "it goes on below the window");
    }

    function test_afterTheFirstImport_tabLeadsToACard(): void {
        openWindow([]);
        importFeed("Imported");
        tryVerify(() => cardOf("Imported"));
        part("settingsButton").forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Tab);
        tryCompare(cardOf("Imported"), "activeFocus", true);
        verify(findChild(cardOf("Imported"), "focusRing").visible);
    }

    name: "CardsOfTheWindow"
}
