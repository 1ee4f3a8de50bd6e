import QtQuick
import QtTest
import Tavlo
import TavloTest

WindowCase {
    id: root

    Component {
        id: viewComponent

        ContentView {
            width: 800
            height: 700
        }
    }

    function newView(properties: var): ContentView {
        return createTemporaryObject(viewComponent, root, properties) as ContentView;
    }

    function test_everythingBeginsClosedAndEmpty(): void {
        const view = newView({});
        compare(view.showingEditor, false);
        compare(view.showingSettings, false);
        compare(view.showingExportPrompt, false);
        compare(view.exportPath, "");
        compare(view.exportError, undefined);
        compare(view.editingPost, undefined);
        verify(view.viewModel);
        verify(view.animation);
    }

    function test_theStoreIsTheViewsOwnAndStays(): void {
        const view = newView({});
        const store = view.viewModel;
        view.showingSettings = true;
        view.showingSettings = false;
        compare(view.viewModel, store);
        const other = newView({});
        verify(other.viewModel !== store);
        verify(other.animation !== view.animation);
    }

    function test_theOwnStoreIsReadFromTheFiles(): void {
        Probe.setPosts(Probe.newStore(), [{
                    "title": "From the file"
                }]);
        Probe.forgetReading("posts.json");
        const view = newView({});
        compare(Probe.posts(view.viewModel)[0].title, "From the file");
        verify(Probe.wasRead("posts.json"));
    }

    function test_aGivenStoreIsUsedAndNoFileIsRead(): void {
        const given = Probe.newStore();
        Probe.setPosts(given, [{
                    "title": "Given"
                }]);
        given.saveSettings();
        Probe.forgetReading("posts.json");
        Probe.forgetReading("rss_settings.json");
        const view = newView({
                "viewModel": given
            });
        waitForRendering(view);
        compare(view.viewModel, given);
        verify(!Probe.wasRead("posts.json"));
        verify(!Probe.wasRead("rss_settings.json"));
    }

    function test_aStoreThatIsGivenIsHandedToTheForms(): void {
        const given = Probe.newStore();
        const view = newView({
                "viewModel": given
            });
        view.showingEditor = true;
        waitForSheets(view);
        tryVerify(() => findChild(view, "editorSheet").opened);
        compare(findChild(view, "editorSheet").contentItem.item.viewModel, given);
        view.showingEditor = false;
    }

    function test_theArticleOptionReachesTheEditorAndNobodyChangesIt(): void {
        const given = Probe.newStore();
        given.useDescriptionAsArticle = true;
        const view = newView({
                "viewModel": given
            });
        view.showingEditor = true;
        waitForSheets(view);
        tryVerify(() => findChild(view, "editorSheet").opened);
        compare(findChild(view, "editorSheet").contentItem.item.useDescriptionAsArticle, true);
        view.showingEditor = false;
        tryVerify(() => !findChild(view, "editorSheet").visible);
        compare(given.useDescriptionAsArticle, true);
    }

    function init(): void {
        Probe.forgetAll();
    }

    name: "StateOfTheWindow"
}
