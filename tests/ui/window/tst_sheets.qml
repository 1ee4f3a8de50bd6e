import QtQuick
import QtTest
import Tavlo
import TavloTest

WindowCase {
    id: root

    readonly property var sheets: [{
            "tag": "editorSheet",
            "flag": "showingEditor",
            "first": "titleField",
            "width": 700,
            "height": 600
        }, {
            "tag": "settingsSheet",
            "flag": "showingSettings",
            "first": "titleField",
            "width": 500,
            "height": 300
        }, {
            "tag": "exportSheet",
            "flag": "showingExportPrompt",
            "first": "pathField",
            "width": 500,
            "height": 0
        }]

    function init(): void {
        const posts = [];
        for (let i = 0; i < 30; ++i) {
            posts.push({
                    "title": "Post " + i,
                    "content": "c"
                });
        }
        openWindow(posts);
    }

    function flags(): var {
        return [root.view.showingEditor, root.view.showingSettings, root.view.showingExportPrompt];
    }

    // The part of the window that is behind a sheet.
    function page(): Item {
        return shownItems(root.view).find(item => item as HeaderView).parent.parent;
    }

    function list(): Item {
        return shownItems(root.view).find(item => item as PostListView);
    }

    function test_aSheetHasItsSizeInTheMiddle_data(): var {
        return root.sheets;
    }

    function test_aSheetHasItsSizeInTheMiddle(data: var): void {
        openSheet(data.tag);
        verify(part(data.tag).modal);
        const frame = place(form(data.tag));
        compare(frame.width, data.width);
        if (data.height > 0)
            compare(frame.height, data.height);
        else
            compare(frame.height, form(data.tag).implicitHeight);
        fuzzyCompare(frame.left + frame.width / 2, root.app.width / 2, 1);
        fuzzyCompare(frame.top + frame.height / 2, root.app.height / 2, 1);
        verify(frame.top >= 0 && frame.bottom <= root.app.height);
    }

    function test_assistiveToolsKnowASheetByItsTitle_data(): var {
        return root.sheets;
    }

    function test_assistiveToolsKnowASheetByItsTitle(data: var): void {
        Probe.startAssistiveTools();
        openSheet(data.tag);
        const told = Probe.accessible(part(data.tag).contentItem.parent);
        compare(told.role, "Dialog");
        verify(told.name !== "");
        compare(told.name, sheetTitle(data.tag));
    }

    function test_assistiveToolsHearOfAnotherTitle(): void {
        Probe.startAssistiveTools();
        openSheet("editorSheet");
        const dialog = part("editorSheet").contentItem.parent;
        compare(Probe.accessible(dialog).name, "New Post");
        keyClick(Qt.Key_Escape);
        waitUntilGone("editorSheet");
        root.view.editingPost = Probe.postAt(root.store, 0);
        root.view.showingEditor = true;
        waitUntilOpen("editorSheet");
        compare(Probe.accessible(dialog).name, "Edit Post");
    }

    function test_theFirstFieldHasTheFocusAndTakesKeysAtOnce_data(): var {
        return root.sheets;
    }

    function test_theFirstFieldHasTheFocusAndTakesKeysAtOnce(data: var): void {
        mouseClick(part(data.tag === "editorSheet" ? "newPostButton" : data.tag === "settingsSheet" ? "settingsButton" : "exportButton"));
        keyClick(Qt.Key_End);
        keyClick("q");
        waitUntilOpen(data.tag);
        const field = control(data.tag, data.first);
        verify(field.activeFocus);
        verify(field.text.endsWith("q"), field.text);
    }

    function test_theFocusStaysInTheSheet_data(): var {
        return root.sheets;
    }

    function test_theFocusStaysInTheSheet(data: var): void {
        openSheet(data.tag);
        const first = control(data.tag, data.first);
        let rounds = 0;
        for (let i = 0; i < 40; ++i) {
            keyClick(i < 20 ? Qt.Key_Tab : Qt.Key_Backtab, i < 20 ? Qt.NoModifier : Qt.ShiftModifier);
            verify(form(data.tag).activeFocus, "after " + (i + 1) + " keys");
            if (first.activeFocus)
                ++rounds;
        }
        verify(rounds >= 2);
    }

    function test_theFocusGoesBackWhereItWas_data(): var {
        return root.sheets;
    }

    function test_theFocusGoesBackWhereItWas(data: var): void {
        const before = part("importButton");
        before.forceActiveFocus(Qt.TabFocusReason);
        root.view[data.flag] = true;
        waitUntilOpen(data.tag);
        verify(!before.activeFocus);
        root.view[data.flag] = false;
        waitUntilGone(data.tag);
        tryCompare(before, "activeFocus", true);
    }

    function test_thePageBehindIsClosedToAssistiveTools_data(): var {
        return root.sheets;
    }

    function test_thePageBehindIsClosedToAssistiveTools(data: var): void {
        openSheet(data.tag);
        for (const name of ["newPostButton", "exportButton", "importButton", "settingsButton"]) {
            Probe.pressAccessibly(part(name));
            verify(!part(name).enabled, name);
        }
        verify(!cards()[0].enabled);
        compare(flags(), root.sheets.map(sheet => sheet.tag === data.tag));
        root.view[data.flag] = false;
        waitUntilGone(data.tag);
        verify(part("newPostButton").enabled);
        verify(cards()[0].enabled);
    }

    function test_clicksWheelAndKeysDoNotReachThePage_data(): var {
        return root.sheets;
    }

    function test_clicksWheelAndKeysDoNotReachThePage(data: var): void {
        openSheet(data.tag);
        const top = list().contentY;
        const expected = root.sheets.map(sheet => sheet.tag === data.tag);
        const content = root.app.contentItem;
        for (const name of ["newPostButton", "exportButton", "settingsButton"]) {
            const middle = place(part(name));
            mouseClick(content, middle.x + middle.width / 2, middle.y + middle.height / 2);
        }
        mouseClick(content, 3, content.height - 3);
        mouseClick(content, 3, content.height - 3, Qt.RightButton);
        mouseWheel(content, 20, content.height - 20, 0, -1200);
        keySequence("Ctrl+N");
        keySequence("Ctrl+E");
        wait(2 * Theme.shortDuration);
        compare(flags(), expected);
        compare(list().contentY, top);
        verify(part(data.tag).opened);
        verify(form(data.tag).activeFocus);
    }

    function test_escapeClosesEditorAndSettingsAlone_data(): var {
        return root.sheets;
    }

    function test_escapeClosesEditorAndSettingsAlone(data: var): void {
        const before = titles();
        openSheet(data.tag);
        keyClick("q");
        keyClick(Qt.Key_Escape);
        compare(root.view[data.flag], data.tag === "exportSheet");
        compare(titles(), before);
    }

    function test_aSheetThatLeavesTakesNoInput_data(): var {
        return root.sheets;
    }

    function test_aSheetThatLeavesTakesNoInput(data: var): void {
        openSheet(data.tag);
        const before = titles();
        keyClick("q");
        root.view[data.flag] = false;
        verify(part(data.tag).visible);
        const field = control(data.tag, data.first);
        const text = field.text;
        keyClick("z");
        compare(field.text, text);
        keySequence("Ctrl+Return");
        keyClick(Qt.Key_Return);
        keyClick(Qt.Key_Escape);
        const save = control(data.tag, data.tag === "exportSheet" ? "exportButton" : "saveButton");
        mouseClick(save);
        Probe.pressAccessibly(save);
        waitUntilGone(data.tag);
        keySequence("Ctrl+Return");
        compare(titles(), before);
        compare(root.store.blogTitle, "My Tavlo");
        compare(flags(), [false, false, false]);
    }

    function test_aSheetCanBeOpenedAgainAndAgain_data(): var {
        return root.sheets;
    }

    function test_aSheetCanBeOpenedAgainAndAgain(data: var): void {
        for (let i = 0; i < 3; ++i) {
            openSheet(data.tag);
            const field = control(data.tag, data.first);
            if (data.tag === "editorSheet")
                compare(field.text, "");
            keyClick("q");
            mouseClick(control(data.tag, "cancelButton"));
            compare(root.view[data.flag], false);
            waitUntilGone(data.tag);
        }
    }

    function test_aSheetThatIsWantedAgainWhileItLeavesComesBackAnew(): void {
        openSheet("editorSheet");
        type("abandoned");
        root.view.showingEditor = false;
        wait(20);
        root.view.showingEditor = true;
        tryVerify(() => part("editorSheet").opened && !part("editorSheet").leaving);
        waitUntilOpen("editorSheet");
        compare(control("editorSheet", "titleField").text, "");
        type("fresh");
        keySequence("Ctrl+Return");
        compare(titles()[0], "fresh");
    }

    function test_heldSaveKeyStoresOnePostAndOpensNothing(): void {
        openSheet("editorSheet");
        type("x");
        Probe.hold(root.app, Qt.Key_Return, Qt.ControlModifier, 60);
        waitUntilGone("editorSheet");
        compare(titles().length, 31);
        compare(flags(), [false, false, false]);
    }

    function test_saveTwiceStoresOnePost(): void {
        openSheet("editorSheet");
        type("x");
        const save = control("editorSheet", "saveButton");
        mouseDoubleClickSequence(save);
        mouseClick(save);
        waitUntilGone("editorSheet");
        compare(titles().length, 31);
    }

    function test_saveDuringTheEntranceStoresThePost(): void {
        keySequence("Ctrl+N");
        type("quick");
        keySequence("Ctrl+Return");
        compare(titles()[0], "quick");
        waitUntilGone("editorSheet");
        compare(titles().length, 31);
    }

    function test_settingsAndExportDismissedLeaveTheOtherFieldsAlone_data(): var {
        return [{
                "tag": "settings, by Escape",
                "sheet": "settingsSheet",
                "flag": "showingSettings",
                "dismiss": () => keyClick(Qt.Key_Escape)
            }, {
                "tag": "settings, by Cancel",
                "sheet": "settingsSheet",
                "flag": "showingSettings",
                "dismiss": () => mouseClick(control("settingsSheet", "cancelButton"))
            }, {
                "tag": "settings, by the owner",
                "sheet": "settingsSheet",
                "flag": "showingSettings",
                "dismiss": () => root.view.showingSettings = false
            }, {
                "tag": "export, by Cancel",
                "sheet": "exportSheet",
                "flag": "showingExportPrompt",
                "dismiss": () => mouseClick(control("exportSheet", "cancelButton"))
            }, {
                "tag": "export, by the owner",
                "sheet": "exportSheet",
                "flag": "showingExportPrompt",
                "dismiss": () => root.view.showingExportPrompt = false
            }];
    }

    function test_settingsAndExportDismissedLeaveTheOtherFieldsAlone(data: var): void {
        root.view.exportPath = "/typed";
        root.view.exportError = "an error";
        const post = Probe.postAt(root.store, 0);
        root.view.editingPost = post;
        root.view[data.flag] = true;
        waitUntilOpen(data.sheet);
        data.dismiss();
        waitUntilGone(data.sheet);
        compare(flags(), [false, false, false]);
        compare(root.view.exportPath, "/typed");
        compare(root.view.exportError, "an error");
        compare(Probe.fields(root.view.editingPost), Probe.fields(post));
    }

    function test_savedSettingsAreThoseOfTheNextOpening(): void {
        openSheet("settingsSheet");
        keySequence("Ctrl+A");
        type("My words");
        keyClick(Qt.Key_Return);
        compare(root.view.showingSettings, false);
        waitUntilGone("settingsSheet");
        compare(root.store.blogTitle, "My words");
        openSheet("settingsSheet");
        compare(control("settingsSheet", "titleField").text, "My words");
    }

    function test_aSecondSheetWaitsForTheFirst(): void {
        openSheet("settingsSheet");
        root.view.showingExportPrompt = true;
        wait(2 * Theme.shortDuration);
        verify(!part("exportSheet").visible);
        root.view.showingSettings = false;
        waitUntilOpen("exportSheet");
        verify(!part("settingsSheet").visible);
        verify(control("exportSheet", "pathField").activeFocus);
        verify(!page().enabled);
    }

    function test_anOpenFieldMenuTakesEscapeFirst(): void {
        openSheet("settingsSheet");
        mouseClick(control("settingsSheet", "titleField"), 10, 10, Qt.RightButton);
        tryVerify(() => shownText("Select All"));
        wait(Theme.shortDuration);
        keyClick(Qt.Key_Escape);
        compare(root.view.showingSettings, true);
        tryVerify(() => !shownText("Select All"));
        keyClick(Qt.Key_Escape);
        compare(root.view.showingSettings, false);
    }

    function test_anOpenFieldMenuTakesReturnFirst_data(): var {
        return [{
                "tag": "settings",
                "sheet": "settingsSheet",
                "field": "titleField",
                "flag": "showingSettings"
            }, {
                "tag": "export",
                "sheet": "exportSheet",
                "field": "pathField",
                "flag": "showingExportPrompt"
            }];
    }

    function test_anOpenFieldMenuTakesReturnFirst(data: var): void {
        openSheet(data.sheet);
        const field = control(data.sheet, data.field);
        const text = field.text;
        field.selectAll();
        keyClick(Qt.Key_Menu);
        const menu = findChild(field, "editMenu");
        tryCompare(menu, "opened", true);
        while (menu.itemAt(menu.currentIndex).objectName !== "cutItem")
            keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Return);
        tryCompare(menu, "visible", false);
        verify(text !== "");
        compare(field.text, "");
        compare(root.view[data.flag], true);
        verify(field.activeFocus);
        verify(!Probe.exists("Desktop/feed.xml"));
        keyClick(Qt.Key_Return);
        compare(root.view[data.flag], false);
    }

    name: "Sheets"
}
