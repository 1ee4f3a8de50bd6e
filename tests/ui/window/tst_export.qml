import QtQuick
import QtTest
import Tavlo
import TavloTest

WindowCase {
    id: root

    readonly property string usualPath: Probe.home + "/Desktop/feed.xml"

    function init(): void {
        Probe.makeFolder("Desktop");
        openWindow([{
                    "title": "A & B",
                    "content": "c",
                    "description": "d"
                }]);
    }

    function pathField(): Item {
        return control("exportSheet", "pathField");
    }

    function replacePath(path: string): void {
        keySequence("Ctrl+A");
        keyClick(Qt.Key_Delete);
        Probe.setClipboard(path);
        if (path !== "")
            keySequence("Ctrl+V");
    }

    function test_thePromptOpensWithTheDesktopsPathSelected(): void {
        mouseClick(part("exportButton"));
        compare(root.view.exportPath, root.usualPath);
        compare(root.view.showingExportPrompt, true);
        waitUntilOpen("exportSheet");
        compare(pathField().text, root.usualPath);
        compare(pathField().selectedText, root.usualPath);
        verify(pathField().activeFocus);
    }

    function test_typingSetsThePathOfTheWindow(): void {
        openSheet("exportSheet");
        type("/a");
        compare(root.view.exportPath, "/a");
    }

    function test_thePathOfTheWindowIsThatOfTheField(): void {
        openSheet("exportSheet");
        root.view.exportPath = Probe.home + "/set.xml";
        compare(pathField().text, Probe.home + "/set.xml");
        keyClick(Qt.Key_End);
        keyClick("l");
        pathField().cursorPosition = 2;
        compare(root.view.exportPath, Probe.home + "/set.xmll");
        keyClick("z");
        compare(pathField().cursorPosition, 3);
        root.view.exportPath = Probe.home + "/again.xml";
        keyClick(Qt.Key_Return);
        compare(Probe.read("again.xml"), Probe.feed(root.store));
        waitUntilGone("exportSheet");
    }

    function test_cancelKeepsTheTypedPathUntilTheNextPress(): void {
        openSheet("exportSheet");
        replacePath(Probe.home + "/typed.xml");
        mouseClick(control("exportSheet", "cancelButton"));
        compare(root.view.showingExportPrompt, false);
        compare(root.view.exportPath, Probe.home + "/typed.xml");
        waitUntilGone("exportSheet");
        verify(!Probe.exists("typed.xml"));
        keySequence("Ctrl+E");
        compare(root.view.exportPath, root.usualPath);
        waitUntilOpen("exportSheet");
        compare(pathField().text, root.usualPath);
    }

    function test_exportWritesTheFeedAndCloses_data(): var {
        return [{
                "tag": "button",
                "press": () => mouseClick(control("exportSheet", "exportButton"))
            }, {
                "tag": "Return",
                "press": () => keyClick(Qt.Key_Return)
            }, {
                "tag": "keypad Enter",
                "press": () => keyClick(Qt.Key_Enter, Qt.KeypadModifier)
            }];
    }

    function test_exportWritesTheFeedAndCloses(data: var): void {
        const name = "out " + data.tag + ".xml";
        openSheet("exportSheet");
        replacePath(Probe.home + "/" + name);
        data.press();
        compare(root.view.showingExportPrompt, false);
        compare(Probe.read(name), Probe.feed(root.store));
        verify(Probe.read(name).includes("A &amp; B") || Probe.read(name).includes("A & B"));
        waitUntilGone("exportSheet");
    }

    function test_thePathIsTakenAsTyped_data(): var {
        return ["50%20 #1?.xml", "no extension", " blanks .xml ", "~", "é.xml", "a:b", "tail."].map(name => ({
                        "tag": name
                    }));
    }

    function test_thePathIsTakenAsTyped(data: var): void {
        openSheet("exportSheet");
        replacePath(Probe.home + "/" + data.tag);
        keyClick(Qt.Key_Return);
        compare(Probe.read(data.tag), Probe.feed(root.store));
        waitUntilGone("exportSheet");
    }

    function test_anEmptyPathIsExportedAndClosesThePrompt(): void {
        const folder = Probe.stateOf(".");
        root.view.exportError = "an error";
        openSheet("exportSheet");
        replacePath("");
        compare(root.view.exportPath, "");
        verify(control("exportSheet", "exportButton").enabled);
        keyClick(Qt.Key_Return);
        compare(root.view.showingExportPrompt, false);
        compare(root.view.exportError, undefined);
        waitUntilGone("exportSheet");
        compare(Probe.stateOf("."), folder);
    }

    function test_aPathThatCannotBeWrittenClosesThePromptWithoutAWord(): void {
        openSheet("exportSheet");
        replacePath(Probe.home + "/missing/folder/feed.xml");
        keyClick(Qt.Key_Return);
        compare(root.view.showingExportPrompt, false);
        compare(root.view.exportError, undefined);
        waitUntilGone("exportSheet");
        verify(!Probe.exists("missing"));
    }

    function test_anErrorIsShownWhileSetAndClearedByAnExport(): void {
        root.view.exportError = "The disk is full";
        openSheet("exportSheet");
        compare(root.view.exportError, "The disk is full");
        verify(shownText("❌ The disk is full"));
        mouseClick(control("exportSheet", "cancelButton"));
        waitUntilGone("exportSheet");
        compare(root.view.exportError, "The disk is full");
        openSheet("exportSheet");
        replacePath(Probe.home + "/cleared.xml");
        keyClick(Qt.Key_Return);
        compare(root.view.exportError, undefined);
        waitUntilGone("exportSheet");
    }

    function test_exportTwiceWritesOnce(): void {
        openSheet("exportSheet");
        replacePath(Probe.home + "/once.xml");
        keyClick(Qt.Key_Return);
        const before = Probe.stateOf("once.xml");
        wait(20);
        keyClick(Qt.Key_Return);
        mouseClick(control("exportSheet", "exportButton"));
        compare(Probe.stateOf("once.xml"), before);
        waitUntilGone("exportSheet");
    }

    function test_theExportChangesNothingElse(): void {
        const posts = Probe.posts(root.store);
        const file = Probe.stateOf("posts.json");
        openSheet("exportSheet");
        replacePath(Probe.home + "/apart.xml");
        keyClick(Qt.Key_Return);
        waitUntilGone("exportSheet");
        compare(Probe.posts(root.store), posts);
        compare(Probe.stateOf("posts.json"), file);
        compare(root.view.showingEditor, false);
        compare(root.view.showingSettings, false);
    }

    name: "ExportFromTheWindow"
}
