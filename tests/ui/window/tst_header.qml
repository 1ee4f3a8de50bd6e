import QtQuick
import QtTest
import Tavlo
import TavloTest

WindowCase {
    id: root

    readonly property var buttons: [{
            "tag": "newPostButton",
            "text": "New Post",
            "symbol": "plus",
            "help": "Create a new blog post"
        }, {
            "tag": "exportButton",
            "text": "Export RSS",
            "symbol": "square.and.arrow.down",
            "help": "Export RSS feed"
        }, {
            "tag": "importButton",
            "text": "Import RSS",
            "symbol": "",
            "help": "Import existing RSS feeds"
        }, {
            "tag": "settingsButton",
            "text": "Blog Settings",
            "symbol": "gearshape",
            "help": "Edit RSS feed settings"
        }]

    function init(): void {
        openWindow([]);
    }

    function cleanup(): void {
        Probe.setTextSize(0);
    }

    function test_buttonsHaveTheirTextsSymbolsAndHelp_data(): var {
        return root.buttons;
    }

    function test_buttonsHaveTheirTextsSymbolsAndHelp(data: var): void {
        const button = part(data.tag);
        compare(button.text, data.text);
        compare(button.symbol, data.symbol);
        const told = Probe.accessible(button);
        compare(told.role, "Button");
        compare(told.name, data.text);
        compare(told.description, data.help);
        verify(told.states.includes("focusable"));
    }

    function test_restingThePointerShowsTheHelp_data(): var {
        return root.buttons;
    }

    function test_restingThePointerShowsTheHelp(data: var): void {
        const button = part(data.tag);
        verify(!shownText(data.help));
        mouseMove(button, button.width / 2, button.height / 2);
        tryVerify(() => shownText(data.help), 3000);
        mouseMove(root.view, 5, root.view.height - 5);
        tryVerify(() => !shownText(data.help));
    }

    function test_logoNameAndButtonsStandInOrder(): void {
        const items = shownItems(root.view);
        const logo = items.find(item => item.source !== undefined && String(item.source).includes("rss-logo"));
        compare(logo.width, 32);
        compare(logo.height, 32);
        const name = items.find(item => item.text === "Tavlo");
        verify(name.font.bold);
        compare(name.font.pixelSize, Theme.largeTitleSize);
        const row = [logo, name].concat(root.buttons.map(data => part(data.tag))).map(item => place(item));
        for (let i = 1; i < row.length; ++i)
            verify(row[i - 1].right < row[i].left, "element " + i);
        for (let i = 3; i < row.length; ++i)
            compare(row[i].left - row[i - 1].right, 8);
        compare(row[0].left, Theme.padding);
        fuzzyCompare(row[5].right, root.view.width - Theme.padding, 1);
        for (const button of row.slice(2))
            compare(button.top, row[2].top);
    }

    function test_besideTheButtonsOrAboveThem_theNameLeavesNoMoreRoomThanThePadding(): void {
        const name = shownItems(root.view).find(item => item.text === "Tavlo");
        const capitals = createTemporaryObject(metrics, root, {
                "font": name.font
            });
        compare(place(part("newPostButton")).top, Theme.padding);
        Probe.setTextSize(26);
        waitForLayout();
        capitals.font = name.font;
        verify(place(part("newPostButton")).top > place(name).top + name.baselineOffset);
        fuzzyCompare(place(name).top + name.baselineOffset + capitals.tightBoundingRect.y, Theme.padding, 1);
    }

    function test_aLineDividesTheHeaderFromThePage(): void {
        const header = shownItems(root.view).find(item => item as HeaderView);
        const line = shownItems(root.view).find(item => item.height === 1 && item.width === root.view.width);
        verify(line);
        compare(place(header).top, 0);
        compare(place(line).top, place(header).bottom);
    }

    function test_twoButtonsHaveAKey(): void {
        keySequence("Ctrl+N");
        compare(root.view.showingEditor, true);
        compare(root.view.editingPost, undefined);
        waitUntilOpen("editorSheet");
        root.view.showingEditor = false;
        waitUntilGone("editorSheet");
        keySequence("Ctrl+E");
        compare(root.view.showingExportPrompt, true);
        waitUntilOpen("exportSheet");
    }

    function test_theOtherButtonsHaveNone(): void {
        const letters = "abcdfghijklmopqrstuvwxyz,";
        for (const letter of letters) {
            keySequence("Ctrl+" + letter);
            keySequence("Alt+" + letter);
        }
        keySequence("Alt+N");
        keySequence("Alt+E");
        for (let key = Qt.Key_F1; key <= Qt.Key_F12; ++key)
            keyClick(key);
        verify(!root.view.showingEditor && !root.view.showingSettings && !root.view.showingExportPrompt);
    }

    function test_everyButtonWorksByKeyboard(): void {
        root.view.forceActiveFocus();
        const reached = [];
        for (let i = 0; i < 12; ++i) {
            keyClick(Qt.Key_Tab);
            for (const data of root.buttons) {
                if (part(data.tag).activeFocus && !reached.includes(data.tag))
                    reached.push(data.tag);
            }
        }
        compare(reached.length, 4);
        part("settingsButton").forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Space);
        compare(root.view.showingSettings, true);
    }

    function test_buttonsTakeTheAccessiblePress(): void {
        verify(Probe.pressAccessibly(part("settingsButton")));
        compare(root.view.showingSettings, true);
        waitUntilOpen("settingsSheet");
        Probe.pressAccessibly(part("newPostButton"));
        Probe.pressAccessibly(part("exportButton"));
        compare(root.view.showingEditor, false);
        compare(root.view.showingExportPrompt, false);
    }

    Component {
        id: metrics

        TextMetrics {
            text: "Tavlo"
        }
    }

    name: "Header"
}
