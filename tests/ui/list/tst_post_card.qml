import QtQuick
import QtQuick.Controls.Basic
import QtTest
import Tavlo
import Tavlo.ListTest

TestCase {
    id: root

    property ApplicationWindow window: null
    property PostCardView card: null

    function show(post: var, width: real): void {
        root.window = createTemporaryObject(windows, root, {
                "width": width ?? 500
            });
        root.card = createTemporaryObject(cards, root.window.contentItem, {
                "post": post,
                "title": post.title,
                "description": post.description,
                "permalink": post.permalink,
                "viewModel": StoreHand.store([])
            });
        root.window.requestActivate();
        tryCompare(root.window, "active", true);
        menuRequests.target = root.card;
        menuRequests.clear();
    }

    function text(name: string): Item {
        return findChild(root.card, name).children[0];
    }

    function placeOf(item: Item): rect {
        return item.mapToItem(root.card, 0, 0, item.width, item.height);
    }

    function verifyInside(name: string): void {
        const label = text(name);
        const place = placeOf(label);
        verify(place.x >= Theme.padding, name);
        verify(place.x + label.contentWidth <= root.card.width - Theme.padding + 1, name);
        verify(place.y + label.contentHeight <= root.card.height - Theme.padding + 1, name);
        compare(label.truncated, false);
    }

    name: "PostCard"
    when: windowShown

    function test_showsTheFourTextsInTheirPlaces(): void {
        show(StoreHand.post("A title", "A description", "https://blog.example/a"));
        compare(text("title").text, "A title");
        compare(text("description").text, "A description");
        compare(text("date").text, "May 9, 2026");
        compare(text("permalink").text, "https://blog.example/a");
        const title = placeOf(text("title"));
        const description = placeOf(text("description"));
        const date = placeOf(text("date"));
        const permalink = placeOf(text("permalink"));
        compare(title.x, Theme.padding);
        compare(title.y, Theme.padding);
        compare(description.x, Theme.padding);
        compare(description.y, title.y + title.height + 6);
        compare(date.x, Theme.padding);
        fuzzyCompare(permalink.x + permalink.width, root.card.width - Theme.padding, 0.01);
        fuzzyCompare(date.y + date.height / 2, permalink.y + permalink.height / 2, 1);
        compare(Math.min(date.y, permalink.y), description.y + description.height + 6);
        compare(root.card.height, Math.max(date.y + date.height, permalink.y + permalink.height) + Theme.padding);
    }

    function test_hasTheFontsAndColoursOfTheTheme_data(): var {
        return [{
                "tag": "light",
                "dark": false
            }, {
                "tag": "dark",
                "dark": true
            }];
    }

    function test_hasTheFontsAndColoursOfTheTheme(data: var): void {
        show(StoreHand.post("A title", "A description", "a:b"));
        Theme.dark = data.dark;
        compare(text("title").font.pixelSize, Theme.title2Size);
        compare(text("title").font.bold, true);
        compare(text("description").font.pixelSize, Theme.bodySize);
        compare(text("date").font.pixelSize, Theme.bodySize);
        compare(text("permalink").font.pixelSize, Theme.captionSize);
        compare(text("title").color, Theme.text);
        compare(text("description").color, Theme.text);
        compare(text("date").color, Theme.secondaryText);
        compare(text("permalink").color, Theme.link);
        compare(root.card.background.color, Theme.surface);
        compare(root.card.background.radius, 12);
        Theme.dark = false;
    }

    function test_markupIsShownAsTyped_data(): var {
        return [{
                "tag": "tags",
                "text": "<b>bold</b>"
            }, {
                "tag": "image",
                "text": "<img src=\"https://blog.example/i.png\">"
            }, {
                "tag": "entity",
                "text": "&amp; &lt;"
            }, {
                "tag": "markdown",
                "text": "# **x** [a](b)"
            }, {
                "tag": "ampersand",
                "text": "R&D"
            }];
    }

    function test_markupIsShownAsTyped(data: var): void {
        show(StoreHand.post(data.text, data.text, data.text));
        for (const name of ["title", "description", "permalink"]) {
            compare(text(name).text, data.text);
            compare(text(name).textFormat, Text.PlainText);
        }
    }

    function test_longTextsStayInsideAndWhole_data(): var {
        return [{
                "tag": "title without a space",
                "name": "title",
                "post": StoreHand.post("t".repeat(3000))
            }, {
                "tag": "permalink without a break",
                "name": "permalink",
                "post": StoreHand.post("t", "d", "https://blog.example/" + "p".repeat(1979))
            }, {
                "tag": "long description",
                "name": "description",
                "post": StoreHand.post("t", "A few words ".repeat(10000))
            }, {
                "tag": "long unbroken description",
                "name": "description",
                "post": StoreHand.post("t", "d".repeat(12000))
            }];
    }

    function test_longTextsStayInsideAndWhole(data: var): void {
        show(data.post);
        compare(text(data.name).text, data.post[data.name]);
        verify(text(data.name).lineCount > 1);
        verifyInside(data.name);
        // The date keeps its place beside a permalink of any length.
        verify(placeOf(text("date")).x + text("date").width <= placeOf(text("permalink")).x);
    }

    function test_aDescriptionThatWrapsMakesTheCardTaller(): void {
        show(StoreHand.post("t", "One line"));
        const height = root.card.height;
        root.card.description = "Many words in a row ".repeat(20);
        verify(root.card.height > height + 50);
        compare(text("description").maximumLineCount > 1000000, true);
    }

    function test_lineBreaksAreKept(): void {
        show(StoreHand.post("t", "a\nb\nc"));
        compare(text("description").lineCount, 3);
    }

    function test_anEmptyDescriptionTakesNoLine(): void {
        show(StoreHand.post("t", ""));
        compare(findChild(root.card, "description").height, 0);
    }

    // Letters that the font does not have come from another, whose lines may be lower.
    function test_aLineInAnotherFontIsNoLowerThanOneInTheCardsOwn_data(): var {
        return ["سطر", "שורה", "一行", "บรรทัด"].map(line => ({
                        "tag": line
                    }));
    }

    function test_aLineInAnotherFontIsNoLowerThanOneInTheCardsOwn(data: var): void {
        show(StoreHand.post("A line", "A line"));
        const height = root.card.height;
        const baseline = placeOf(text("title")).y + text("title").baselineOffset;
        root.card.title = data.tag;
        root.card.description = data.tag;
        verify(root.card.height >= height);
        verify(placeOf(text("title")).y + text("title").baselineOffset >= baseline - 0.51);
        root.card.title = "A line";
        root.card.description = "A line";
        compare(root.card.height, height);
    }

    function test_nothingIsSelectableOrALink(): void {
        show(StoreHand.post("t", "d", "https://blog.example"));
        for (const name of ["title", "description", "date", "permalink"])
            verify(text(name).selectedText === undefined, name);
        mouseClick(text("permalink"));
        mouseDoubleClickSequence(text("description"));
    }

    function test_aSecondaryClickAnywhereAsksForTheMenu_data(): var {
        return [{
                "tag": "title",
                "x": 0.1,
                "y": 0.2
            }, {
                "tag": "edge",
                "x": 0.99,
                "y": 0.5
            }, {
                "tag": "permalink",
                "x": 0.95,
                "y": 0.75
            }, {
                "tag": "middle",
                "x": 0.5,
                "y": 0.5
            }];
    }

    function test_aSecondaryClickAnywhereAsksForTheMenu(data: var): void {
        show(StoreHand.post("t", "d", "https://blog.example"));
        mouseClick(root.card, root.card.width * data.x, root.card.height * data.y, Qt.RightButton);
        compare(menuRequests.count, 1);
        fuzzyCompare(menuRequests.signalArguments[0][0], root.card.width * data.x, 1);
        fuzzyCompare(menuRequests.signalArguments[0][1], root.card.height * data.y, 1);
        compare(menuRequests.signalArguments[0][2], false);
    }

    function test_aLongTouchAsksForTheMenu(): void {
        show(StoreHand.post("t", "d", "p"));
        const finger = touchEvent(root.card);
        finger.press(0, root.card, 40, 30).commit();
        tryCompare(menuRequests, "count", 1);
        fuzzyCompare(menuRequests.signalArguments[0][0], 40, 1);
        fuzzyCompare(menuRequests.signalArguments[0][1], 30, 1);
        compare(menuRequests.signalArguments[0][2], false);
        finger.release(0, root.card, 40, 30).commit();
        compare(menuRequests.count, 1);
    }

    function test_aShortTouchAsksForNothing(): void {
        show(StoreHand.post("t", "d", "p"));
        const finger = touchEvent(root.card);
        finger.press(0, root.card, 40, 30).commit();
        wait(100);
        finger.release(0, root.card, 40, 30).commit();
        wait(1000);
        compare(menuRequests.count, 0);
    }

    function test_theMenuKeysAskForTheMenu(): void {
        show(StoreHand.post("t"));
        root.card.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Menu);
        compare(menuRequests.count, 1);
        keyClick(Qt.Key_F10, Qt.ShiftModifier);
        compare(menuRequests.count, 2);
        compare(menuRequests.signalArguments[1][2], true);
    }

    function test_theKeysThatPressAskForTheMenu_data(): var {
        return [{
                "tag": "Return",
                "key": Qt.Key_Return
            }, {
                "tag": "Enter",
                "key": Qt.Key_Enter
            }, {
                "tag": "Space",
                "key": Qt.Key_Space
            }];
    }

    function test_theKeysThatPressAskForTheMenu(data: var): void {
        show(StoreHand.post("t"));
        root.card.forceActiveFocus(Qt.TabFocusReason);
        keyPress(data.key);
        compare(menuRequests.count, 0);
        keyRelease(data.key);
        compare(menuRequests.count, 1);
        compare(menuRequests.signalArguments[0][2], true);
        keyClick(data.key, Qt.ControlModifier);
        keyClick(data.key, Qt.ShiftModifier);
        compare(menuRequests.count, 1);
    }

    function test_aKeyThatWasPressedElsewhereAsksForNothing(): void {
        show(StoreHand.post("t"));
        root.card.forceActiveFocus(Qt.TabFocusReason);
        keyRelease(Qt.Key_Return);
        compare(menuRequests.count, 0);
        keyPress(Qt.Key_Return);
        root.card.focus = false;
        root.card.forceActiveFocus(Qt.TabFocusReason);
        keyRelease(Qt.Key_Return);
        compare(menuRequests.count, 0);
    }

    function test_noOtherKeyOrClickDoesAnything(): void {
        show(StoreHand.post("t", "d", "p"));
        root.card.forceActiveFocus(Qt.TabFocusReason);
        for (const key of [Qt.Key_Delete, Qt.Key_Backspace, Qt.Key_E, Qt.Key_F10])
            keyClick(key);
        mouseClick(root.card);
        mouseDoubleClickSequence(root.card);
        mouseClick(root.card, 20, 20, Qt.MiddleButton);
        mousePress(root.card);
        wait(1000);
        mouseRelease(root.card);
        compare(menuRequests.count, 0);
    }

    function test_theRingShowsForTheKeyboardOnly(): void {
        show(StoreHand.post("t"));
        const ring = findChild(root.card, "focusRing");
        compare(ring.visible, false);
        root.card.forceActiveFocus(Qt.MouseFocusReason);
        compare(ring.visible, false);
        root.window.contentItem.forceActiveFocus();
        root.card.focus = false;
        root.card.forceActiveFocus(Qt.TabFocusReason);
        compare(ring.visible, true);
    }

    function test_assistiveToolsKnowItAsAListItem(): void {
        show(StoreHand.post("The title", "The description", "https://blog.example"));
        compare(root.card.Accessible.role, Accessible.ListItem);
        compare(root.card.Accessible.name, "The title");
        compare(root.card.Accessible.description, "The description\nMay 9, 2026\nhttps://blog.example");
        compare(root.card.Accessible.focusable, true);
        root.card.Accessible.pressAction();
        compare(menuRequests.count, 1);
    }

    function test_assistiveToolsAreToldOfNothingThatIsNotThere(): void {
        show(StoreHand.post("The title"));
        compare(root.card.Accessible.description, "May 9, 2026");
        root.card.dateText = "";
        compare(root.card.Accessible.description, "");
        root.card.permalink = "p";
        compare(root.card.Accessible.description, "p");
    }

    function test_mirrored_startsAtTheRight(): void {
        show(StoreHand.post("t", "d", "p"));
        root.card.LayoutMirroring.enabled = true;
        root.card.LayoutMirroring.childrenInherit = true;
        for (const name of ["title", "description"])
            compare(text(name).effectiveHorizontalAlignment, Text.AlignRight);
        fuzzyCompare(placeOf(text("date")).x + text("date").width, root.card.width - Theme.padding, 0.01);
        compare(placeOf(text("permalink")).x, Theme.padding);
    }

    function test_aChangeInSightFadesFromTextToText(): void {
        show(StoreHand.post("before", "d"));
        root.card.animated = true;
        root.card.title = "after";
        const former = findChild(root.card, "title").children[1];
        compare(text("title").text, "after");
        compare(former.text, "before");
        tryVerify(() => text("title").opacity > 0.2 && text("title").opacity < 0.9);
        fuzzyCompare(text("title").opacity + former.opacity, 1, 0.01);
        compare(text("description").opacity, 1);
        tryCompare(text("title"), "opacity", 1);
        tryCompare(former, "visible", false);
    }

    function test_theHeightFollowsAChangeInSight(): void {
        show(StoreHand.post("t", "One line"));
        const height = root.card.height;
        root.card.animated = true;
        root.card.description = "line\n".repeat(10);
        compare(root.card.height, height);
        tryVerify(() => root.card.height > height + 20);
        verify(root.card.height < height + 9 * text("description").lineHeight * 20);
        const end = root.card.height;
        wait(400);
        verify(root.card.height > end);
        compare(findChild(root.card, "description").height, text("description").height);
    }

    SignalSpy {
        id: menuRequests

        signalName: "menuRequested"
    }

    Component {
        id: windows

        ApplicationWindow {
            height: 400
            visible: true
        }
    }

    Component {
        id: cards

        PostCardView {
            width: parent.width
            dateText: "May 9, 2026"
        }
    }
}
