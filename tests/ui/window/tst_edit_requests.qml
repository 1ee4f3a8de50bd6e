import QtQuick
import QtTest
import Tavlo
import TavloTest

WindowCase {
    id: root

    function init(): void {
        openWindow([{
                    "title": "One",
                    "content": "c",
                    "seconds": 0.1
                }, {
                    "title": "Two",
                    "content": "c"
                }]);
    }

    function post(row: int): var {
        return Probe.postAt(root.store, row);
    }

    function request(row: int): void {
        Probe.notify("editPost", Probe.postAt(root.store, row));
    }

    function editedTitle(): string {
        return control("editorSheet", "titleField").text;
    }

    function test_aPostOpensTheEditorForIt(): void {
        request(0);
        compare(root.view.showingEditor, true);
        compare(Probe.fields(root.view.editingPost), Probe.posts(root.store)[0]);
        waitUntilOpen("editorSheet");
        compare(sheetTitle("editorSheet"), "Edit Post");
        compare(editedTitle(), "One");
    }

    function test_anythingElseIsIgnored_data(): var {
        return [{
                "tag": "nothing",
                "object": undefined
            }, {
                "tag": "null",
                "object": null
            }, {
                "tag": "a text",
                "object": "One"
            }, {
                "tag": "what looks like a post",
                "object": {
                    "title": "One",
                    "content": "c"
                }
            }, {
                "tag": "a list of posts",
                "object": [Qt.point(0, 0)]
            }];
    }

    function test_anythingElseIsIgnored(data: var): void {
        Probe.notify("editPost", data.object);
        compare(root.view.showingEditor, false);
        compare(root.view.editingPost, undefined);
        compare(part("editorSheet").visible, false);
    }

    function test_otherNotificationsAreIgnored(): void {
        Probe.notify("deletePost", post(0));
        compare(root.view.showingEditor, false);
        compare(root.view.editingPost, undefined);
    }

    function test_thePostIsForgottenHoweverTheEditorEnds_data(): var {
        return [{
                "tag": "save key",
                "end": () => keySequence("Ctrl+Return")
            }, {
                "tag": "save button",
                "end": () => mouseClick(control("editorSheet", "saveButton"))
            }, {
                "tag": "cancel button",
                "end": () => mouseClick(control("editorSheet", "cancelButton"))
            }, {
                "tag": "Escape",
                "end": () => keyClick(Qt.Key_Escape)
            }, {
                "tag": "the field",
                "end": () => root.view.showingEditor = false
            }];
    }

    function test_thePostIsForgottenHoweverTheEditorEnds(data: var): void {
        request(0);
        waitUntilOpen("editorSheet");
        data.end();
        compare(root.view.showingEditor, false);
        compare(root.view.editingPost, undefined);
        // The leaving sheet looks as before.
        verify(part("editorSheet").visible);
        compare(sheetTitle("editorSheet"), "Edit Post");
        compare(editedTitle(), "One");
        waitUntilGone("editorSheet");
        keySequence("Ctrl+N");
        waitUntilOpen("editorSheet");
        compare(root.view.editingPost, undefined);
        compare(sheetTitle("editorSheet"), "New Post");
        compare(editedTitle(), "");
    }

    function test_newPostForgetsAPostThatWasLeftBehind(): void {
        root.view.editingPost = post(0);
        mouseClick(part("newPostButton"));
        compare(root.view.editingPost, undefined);
        compare(root.view.showingEditor, true);
        waitUntilOpen("editorSheet");
        compare(sheetTitle("editorSheet"), "New Post");
    }

    function test_whileAnotherSheetIsUpTheFieldsAreSetAndTheDrawingWaits_data(): var {
        return [{
                "tag": "settings",
                "sheet": "settingsSheet",
                "flag": "showingSettings"
            }, {
                "tag": "export",
                "sheet": "exportSheet",
                "flag": "showingExportPrompt"
            }];
    }

    function test_whileAnotherSheetIsUpTheFieldsAreSetAndTheDrawingWaits(data: var): void {
        openSheet(data.sheet);
        request(1);
        compare(root.view.showingEditor, true);
        compare(Probe.fields(root.view.editingPost).title, "Two");
        compare(root.view[data.flag], true);
        wait(2 * Theme.shortDuration);
        verify(part(data.sheet).opened);
        verify(!part("editorSheet").visible);
        keyClick("q");
        mouseClick(control(data.sheet, "cancelButton"));
        waitUntilOpen("editorSheet");
        compare(editedTitle(), "Two");
        compare(sheetTitle("editorSheet"), "Edit Post");
        verify(control("editorSheet", "titleField").activeFocus);
    }

    function test_whileTheEditorIsOpenItsSheetStaysAsItIs(): void {
        request(0);
        waitUntilOpen("editorSheet");
        keyClick(Qt.Key_End);
        type("!");
        request(1);
        wait(2 * Theme.shortDuration);
        compare(root.view.showingEditor, true);
        compare(sheetTitle("editorSheet"), "Edit Post");
        compare(editedTitle(), "One!");
        keySequence("Ctrl+Return");
        compare(titles(), ["One!", "Two"]);
        compare(root.view.editingPost, undefined);
        waitUntilGone("editorSheet");
    }

    function test_whileANewPostIsWrittenItStaysANewPost(): void {
        openSheet("editorSheet");
        type("New");
        request(0);
        compare(sheetTitle("editorSheet"), "New Post");
        compare(editedTitle(), "New");
        keySequence("Ctrl+Return");
        compare(titles(), ["New", "One", "Two"]);
    }

    function test_whileTheEditorLeavesItComesBackForThePost(): void {
        request(0);
        waitUntilOpen("editorSheet");
        keyClick(Qt.Key_Escape);
        wait(30);
        verify(part("editorSheet").visible);
        request(1);
        compare(root.view.showingEditor, true);
        compare(Probe.fields(root.view.editingPost).title, "Two");
        // The leaving form is none that could be saved.
        keySequence("Ctrl+Return");
        Probe.pressAccessibly(control("editorSheet", "saveButton"));
        mouseClick(control("editorSheet", "saveButton"));
        compare(root.view.showingEditor, true);
        tryVerify(() => part("editorSheet").opened && editedTitle() === "Two");
        compare(sheetTitle("editorSheet"), "Edit Post");
        keyClick(Qt.Key_End);
        type("!");
        keySequence("Ctrl+Return");
        compare(titles(), ["One", "Two!"]);
    }

    function test_thePostOfARequestIsACopy(): void {
        request(0);
        waitUntilOpen("editorSheet");
        const before = Probe.posts(root.store)[0];
        Probe.setPosts(root.store, [{
                    "title": "Changed behind",
                    "id": before.id,
                    "content": "c"
                }]);
        compare(Probe.fields(root.view.editingPost), before);
        compare(editedTitle(), "One");
    }

    function test_everyViewHearsTheRequestAndSavesToItsOwnStore(): void {
        const first = root.app;
        const firstView = root.view;
        const second = createTemporaryObject(secondComponent, root, {}) as TavloApp;
        const secondView = second.contentItem.children[0] as ContentView;
        verify(secondView.viewModel !== firstView.viewModel);
        request(0);
        compare(firstView.showingEditor, true);
        compare(secondView.showingEditor, true);
        compare(Probe.fields(secondView.editingPost), Probe.fields(firstView.editingPost));
        waitForSheets(secondView);
        tryVerify(() => findChild(secondView, "editorSheet").opened);
        second.requestActivate();
        tryCompare(second, "active", true);
        keyClick(Qt.Key_End);
        type("!");
        keySequence("Ctrl+Return");
        compare(secondView.showingEditor, false);
        compare(firstView.showingEditor, true);
        compare(Probe.posts(secondView.viewModel).map(post => post.title), ["One!", "Two"]);
        compare(Probe.posts(firstView.viewModel).map(post => post.title), ["One", "Two"]);
        first.requestActivate();
    }

    Component {
        id: secondComponent

        TavloApp {
        }
    }

    name: "EditRequestsInTheWindow"
}
