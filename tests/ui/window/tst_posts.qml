import QtQuick
import QtTest
import Tavlo
import TavloTest

WindowCase {
    id: root

    readonly property string nothing: "No blog posts yet."

    function shownTitles(): var {
        return cards().sort((a, b) => place(a).top - place(b).top).map(card => card.post.title);
    }

    function test_withoutPostsTheWindowSaysSo(): void {
        openWindow([]);
        verify(shownText(root.nothing));
        compare(cards().length, 0);
    }

    function test_withPostsTheWindowShowsThemInTheStoresOrder(): void {
        openWindow([{
                    "title": "Zebra",
                    "seconds": 1
                }, {
                    "title": "Apple",
                    "seconds": 3
                }, {
                    "title": "Mango",
                    "seconds": 2
                }]);
        compare(shownTitles(), ["Zebra", "Apple", "Mango"]);
        verify(!shownText(root.nothing));
    }

    function test_theFirstPostTakesThePlaceOfTheWords(): void {
        openWindow([]);
        openSheet("editorSheet");
        type("First");
        keySequence("Ctrl+Return");
        tryVerify(() => !shownText(root.nothing));
        compare(shownTitles(), ["First"]);
        waitUntilGone("editorSheet");
        compare(titles(), ["First"]);
    }

    function test_withTheLastPostTheWordsComeBack(): void {
        openWindow([{
                    "title": "Only"
                }]);
        PostActions.remove(root.store, Probe.postAt(root.store, 0));
        tryVerify(() => shownText(root.nothing));
        tryVerify(() => cards().length === 0);
        compare(titles(), []);
    }

    function test_theEditorIsOpenedFromACardAndChangesIt(): void {
        openWindow([{
                    "title": "One",
                    "content": "c"
                }, {
                    "title": "Two",
                    "content": "c"
                }]);
        PostActions.edit(Probe.postAt(root.store, 1));
        waitUntilOpen("editorSheet");
        compare(sheetTitle("editorSheet"), "Edit Post");
        keyClick(Qt.Key_End);
        type("!");
        keySequence("Ctrl+Return");
        waitUntilGone("editorSheet");
        tryVerify(() => shownTitles().includes("Two!"));
        compare(shownTitles(), ["One", "Two!"]);
    }

    function test_anImportReplacesTheCards(): void {
        openWindow([{
                    "title": "Old"
                }]);
        Probe.write("in.xml", "<rss><channel><item><title>A</title><link>l</link><description>d</description></item>" + "<item><title>B</title><link>l</link><description>d</description></item></channel></rss>");
        root.store.importRSSFeed(Probe.home + "/in.xml");
        tryVerify(() => titles().length === 2);
        compare(titles(), ["A", "B"]);
        tryVerify(() => shownTitles().length === 2);
        compare(shownTitles(), ["A", "B"]);
    }

    function test_theListFillsTheWindowBelowTheHeader(): void {
        const posts = [];
        for (let i = 0; i < 200; ++i) {
            posts.push({
                    "title": "Post " + i
                });
        }
        openWindow(posts);
        verify(cards().length < 40, "only the cards in sight exist");
        const sight = shownTitles();
        compare(sight[0], "Post 0");
        compare(place(cards()[0]).left, Theme.padding);
        compare(place(cards()[0]).right, root.view.width - Theme.padding);
    }

    name: "PostsOfTheWindow"
}
