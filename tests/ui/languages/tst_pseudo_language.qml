import QtQuick
import QtTest
import Tavlo
import TavloTest
import "../window"

// The whole window in a language whose texts stand in brackets, have no plain letter and are two
// fifths longer: what shows a plain letter was not looked up, and what is cut does not fit.
WindowCase {
    id: root

    // The user's own texts have no plain letter either.
    readonly property var posts: [{
            "title": "Πρώτο",
            "content": "α",
            "description": "Ένα κείμενο",
            "permalink": "://1",
            "seconds": 800000000
        }, {
            "title": "Δεύτερο",
            "content": "β",
            "description": "",
            "permalink": "://2",
            "seconds": 800086400
        }]
    // Every text of the language that a test has found on screen.
    property var found: ({})

    function init(): void {
        openWindow(root.posts);
        makeLeast();
    }

    function makeLeast(): void {
        root.app.width = root.app.minimumWidth;
        root.app.height = root.app.minimumHeight;
        waitForLayout();
    }

    function ground(): Item {
        return root.app.contentItem.parent;
    }

    function isField(item: Item): bool {
        return item.cursorPosition !== undefined;
    }

    function isText(item: Item): bool {
        return item.truncated !== undefined && item.contentWidth !== undefined;
    }

    // All texts that an item shows or tells assistive tools. What is in a field is the user's.
    function textsOf(item: Item): var {
        const told = Probe.accessible(item);
        const texts = [told.name, told.description, item.placeholderText];
        if (!isField(item))
            texts.push(item.text);
        return texts.filter(text => typeof text === "string" && text !== "");
    }

    function checkLookedUp(item: Item): void {
        for (const text of textsOf(item)) {
            verify(text === "Tavlo" || !/[A-Za-z]/.test(text), "not looked up: " + text);
            if (text.startsWith("["))
                root.found[text] = true;
        }
    }

    function contentPlace(text: Item): rect {
        const left = text.horizontalAlignment === Text.AlignHCenter ? (text.width - text.contentWidth) / 2 : text.effectiveHorizontalAlignment === Text.AlignRight ? text.width - text.contentWidth : 0;
        return text.mapToItem(ground(), left, 0, text.contentWidth, text.contentHeight);
    }

    // A text is whole, within all that it stands on.
    function checkFits(text: Item): void {
        verify(!text.truncated, "cut: " + text.text);
        const inner = contentPlace(text);
        for (let frame = text; frame; frame = frame.parent) {
            if (frame.width === 0 || frame.height === 0)
                continue;
            const outer = frame.mapToItem(ground(), 0, 0, frame.width, frame.height);
            const slack = 1;
            verify(inner.left >= outer.left - slack && inner.right <= outer.right + slack, "too wide for " + frame + ": " + text.text);
            verify(inner.top >= outer.top - slack && inner.bottom <= outer.bottom + slack, "too high for " + frame + ": " + text.text);
        }
    }

    function checkApart(texts: var): void {
        for (let i = 0; i < texts.length; ++i) {
            for (let j = 0; j < i; ++j) {
                const one = contentPlace(texts[i]);
                const other = contentPlace(texts[j]);
                const apart = one.left >= other.right || other.left >= one.right || one.top >= other.bottom || other.top >= one.bottom;
                verify(apart, texts[i].text + " over " + texts[j].text);
            }
        }
    }

    // Checks everything on screen below an item.
    function check(below: Item): void {
        waitForLayout();
        const items = shownItems(below);
        items.forEach(item => checkLookedUp(item));
        const texts = items.filter(item => isText(item) && item.text !== "");
        verify(texts.length > 0);
        texts.forEach(text => checkFits(text));
        checkApart(texts);
        // A form shows all of itself.
        for (const form of items.filter(item => item as FormArea))
            verify(form.contentHeight <= form.height, "the form scrolls");
    }

    function checkMenu(menu: AppMenu): void {
        tryCompare(menu, "opened", true);
        check(menu.contentItem);
        menu.close();
        tryCompare(menu, "visible", false);
    }

    function checkEditMenu(field: Item): void {
        field.forceActiveFocus();
        keyClick(Qt.Key_Menu);
        const menu = findChild(field, "editMenu") as AppMenu;
        verify(menu);
        checkMenu(menu);
    }

    function test_1_theList(): void {
        compare(root.app.title, "Tavlo");
        compare(cards().length, 2);
        check(ground());
        verify(Object.keys(root.found).length >= 9);
    }

    function test_1_noPosts(): void {
        openWindow([]);
        makeLeast();
        check(ground());
    }

    function test_1_theHelpOfTheHeadersButtons_data(): var {
        return ["newPostButton", "exportButton", "importButton", "settingsButton"].map(tag => ({
                        "tag": tag
                    }));
    }

    function test_1_theHelpOfTheHeadersButtons(data: var): void {
        const button = part(data.tag) as ProminentButton;
        button.forceActiveFocus(Qt.TabFocusReason);
        const help = findChild(button, "help") as HelpTip;
        tryCompare(help, "opened", true);
        verify(help.text.startsWith("["));
        check(help.contentItem);
    }

    function test_1_theMenuOfACard(): void {
        const card = cards()[0];
        mouseClick(card, card.width / 2, card.height / 2, Qt.RightButton);
        checkMenu(part("cardMenu") as AppMenu);
    }

    function test_1_theEditorOfANewPost(): void {
        openSheet("editorSheet");
        compare(place(form("editorSheet")).width, 700);
        compare(place(form("editorSheet")).height, 600);
        check(form("editorSheet"));
        checkEditMenu(control("editorSheet", "titleField"));
        checkEditMenu((control("editorSheet", "descriptionField") as MultiLineField).textArea);
    }

    function test_1_theEditorOfAPost(): void {
        root.view.editingPost = Probe.postAt(root.store, 0);
        root.view.showingEditor = true;
        waitUntilOpen("editorSheet");
        check(form("editorSheet"));
    }

    function test_1_theEditorOfADateWithoutADay(): void {
        root.view.editingPost = Probe.post({
                "title": "Πρώτο",
                "seconds": 1e300
            });
        root.view.showingEditor = true;
        waitUntilOpen("editorSheet");
        check(form("editorSheet"));
    }

    function test_1_theMenuOfTheDate(): void {
        openSheet("editorSheet");
        control("editorSheet", "dateField").forceActiveFocus();
        keyClick(Qt.Key_Menu);
        checkMenu(findChild(control("editorSheet", "dateField"), "dateMenu") as AppMenu);
    }

    function test_1_theMonth(): void {
        openSheet("editorSheet");
        mouseClick(control("editorSheet", "monthButton"));
        const month = findChild(control("editorSheet", "monthButton"), "monthPopup") as MonthPopup;
        tryCompare(month, "opened", true);
        check(month.contentItem);
    }

    function test_1_theSettings(): void {
        openSheet("settingsSheet");
        compare(place(form("settingsSheet")).width, 500);
        compare(place(form("settingsSheet")).height, 300);
        check(form("settingsSheet"));
    }

    function test_1_theExportPrompt(): void {
        openSheet("exportSheet");
        compare(place(form("exportSheet")).width, 500);
        root.view.exportError = "—";
        check(form("exportSheet"));
        // The hint shows where there is no path.
        const field = control("exportSheet", "pathField") as OneLineField;
        field.text = "";
        check(form("exportSheet"));
        checkEditMenu(field);
    }

    // The last test by its name: what the others found is all that there is.
    function test_2_everyTextOfTheLanguageWasOnScreen(): void {
        compare(PseudoLanguage.texts.filter(text => !root.found[text]), []);
    }

    name: "PseudoLanguage"
}
