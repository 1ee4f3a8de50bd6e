import QtQuick
import QtTest
import Tavlo
import TavloTest

// What the tests of the window have in common: the program's window over files of the test's own,
// and ways to its parts.
TestCase {
    id: root

    property TavloApp app: null
    property ContentView view: null
    readonly property BlogViewModel store: root.view ? root.view.viewModel : null

    // Opens the window over these posts.
    function openWindow(posts: var): void {
        Probe.forgetAll();
        if (posts.length > 0)
            Probe.setPosts(Probe.newStore(), posts);
        root.app = createTemporaryObject(appComponent, root) as TavloApp;
        root.view = root.app.contentItem.children[0] as ContentView;
        root.app.requestActivate();
        tryCompare(root.app, "active", true);
        root.waitForSheets(root.view);
        root.waitForLayout();
    }

    // Waits until a view has loaded its sheets.
    function waitForSheets(view: ContentView): void {
        root.tryCompare(root.findChild(view, "sheets"), "status", Loader.Ready);
    }

    // Waits until every item on screen has its place.
    function waitForLayout(): void {
        tryVerify(() => !root.shownItems(root.app.contentItem.parent).some(item => root.isPolishScheduled(item)));
    }

    function titles(): var {
        return Probe.posts(root.store).map(post => post.title);
    }

    function type(text: string): void {
        for (const character of text)
            root.keyClick(character);
    }

    function part(name: string): QtObject {
        const found = root.findChild(root.view, name);
        root.verify(found, name);
        return found;
    }

    function form(sheetName: string): Item {
        return root.part(sheetName).contentItem.item;
    }

    // A control of the form that a sheet shows.
    function control(sheetName: string, name: string): Item {
        const found = root.findChild(root.form(sheetName), name);
        root.verify(found, name);
        return found;
    }

    function waitUntilOpen(sheetName: string): void {
        root.tryCompare(root.part(sheetName), "opened", true);
    }

    function waitUntilGone(sheetName: string): void {
        root.tryCompare(root.part(sheetName), "visible", false);
    }

    function openSheet(sheetName: string): void {
        const buttons = {
            "editorSheet": "newPostButton",
            "settingsSheet": "settingsButton",
            "exportSheet": "exportButton"
        };
        root.mouseClick(root.part(buttons[sheetName]));
        root.waitUntilOpen(sheetName);
    }

    // All items on screen below one, outermost first.
    function shownItems(item: Item): var {
        if (!item.visible || item.opacity === 0)
            return [];
        const found = [item];
        for (let i = 0; i < item.children.length; ++i)
            found.push(...root.shownItems(item.children[i]));
        return found;
    }

    function cards(): var {
        return root.shownItems(root.view).filter(item => item as PostCardView);
    }

    function shownText(text: string): Item {
        const found = root.shownItems(root.app.contentItem.parent).filter(item => item.text === text && item.textFormat !== undefined);
        return found.length > 0 ? found[0] : null;
    }

    // The title of the sheet that is on screen.
    function sheetTitle(sheetName: string): string {
        const found = root.shownItems(root.form(sheetName)).filter(item => item as SheetTitle);
        return found.length > 0 ? found[0].text : "";
    }

    function place(item: Item): rect {
        return item.mapToItem(root.app.contentItem, 0, 0, item.width, item.height);
    }

    when: windowShown

    Component {
        id: appComponent

        TavloApp {
        }
    }
}
