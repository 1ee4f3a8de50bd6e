import QtQuick
import QtQuick.Controls.Basic
import QtTest
import Tavlo
import Tavlo.ListTest

TestCase {
    id: root

    property ApplicationWindow window: null
    property BlogViewModel store: null
    property PostsArea area: null
    property PostListView list: null

    function show(store: BlogViewModel): void {
        root.store = store;
        root.window = createTemporaryObject(windows, root);
        root.area = createTemporaryObject(areas, root.window.contentItem, {
                "viewModel": store
            });
        root.list = findChild(root.area, "postList");
        root.window.requestActivate();
        tryCompare(root.window, "active", true);
        wait(50);
        focusLeft.target = root.area;
        focusLeft.clear();
        StoreHand.forgetEdits();
        StoreHand.forgetSaved();
    }

    function names(prefix: string, count: int): var {
        const all = [];
        for (let i = 0; i < count; ++i)
            all.push(prefix + i);
        return all;
    }

    // Every row that exists, also the leaving ones, from top to bottom.
    function allRows(): var {
        const rows = [];
        for (let i = 0; i < root.list.contentItem.children.length; ++i) {
            const row = root.list.contentItem.children[i] as PostRow;
            if (row)
                rows.push(row);
        }
        return rows.sort((a, b) => a.y - b.y);
    }

    function leavingRows(): var {
        return allRows().filter(row => row.index < 0);
    }

    function row(index: int): Item {
        return root.list.itemAtIndex(index);
    }

    // A row's card, or null if the row is too far out of sight to exist.
    function card(index: int): Item {
        const item = row(index);
        return item ? item.children[0] : null;
    }

    // The row of that index is the current one, and its card has the focus, wherever it is.
    function verifyFocused(index: int): void {
        compare(root.list.currentIndex, index);
        verify(root.list.currentItem.children[0].activeFocus);
    }

    // Where a row's card stands in the view.
    function placeOf(row: Item): real {
        return row.y + row.shift - root.list.contentY;
    }

    // The rows lie one below the other, opaque, and nothing else is there.
    function verifySettled(): void {
        // The current card exists farther away, too.
        const around = root.list.cacheBuffer;
        const all = allRows().filter(row => placeOf(row) + row.height > -around && placeOf(row) < root.list.height + around);
        compare(leavingRows().length, 0);
        compare(root.list.count, StoreHand.titles(root.store).length);
        for (let i = 0; i < all.length; ++i) {
            compare(all[i].shift, 0);
            compare(all[i].opacity, 1);
            compare(all[i].children[0].opacity, 1);
            compare(all[i].post.title, StoreHand.titles(root.store)[all[i].index]);
            if (i > 0) {
                compare(all[i].index, all[i - 1].index + 1);
                fuzzyCompare(all[i].y, all[i - 1].y + all[i - 1].height + 12, 0.01);
            }
        }
        verify(root.list.contentY >= root.list.originY - 16.01);
    }

    function waitUntilSettled(): void {
        tryCompare(root.list, "changing", false);
        tryVerify(() => leavingRows().length === 0);
        wait(100);
    }

    function scrollTo(position: real): void {
        root.list.contentY = position;
        root.list.forceLayout();
        wait(50);
    }

    name: "PostList"
    when: windowShown

    // What is on screen
    function test_withoutPosts_thereIsOnlyTheEmptyState(): void {
        show(StoreHand.store([]));
        const message = findChild(root.area, "message");
        verify(message.visible);
        compare(message.text, "No blog posts yet.");
        compare(message.font.pixelSize, Theme.title3Size);
        compare(message.color, Theme.secondaryText);
        const symbol = findChild(root.area, "symbol");
        verify(symbol.visible);
        compare(symbol.width, 64);
        compare(symbol.height, 64);
        compare(root.list.visible, false);
        // Symbol, its padding at the bottom, the space between, text: in the middle of the area.
        const top = symbol.mapToItem(root.area, 0, 0).y;
        const bottom = message.mapToItem(root.area, 0, message.height).y;
        fuzzyCompare((top + bottom) / 2, root.area.height / 2, 1);
        compare(message.mapToItem(root.area, 0, 0).y - top, 64 + 16 + 8);
    }

    function test_withPosts_thereIsOnlyTheList(): void {
        show(StoreHand.store(["A"]));
        verify(root.list.visible);
        compare(findChild(root.area, "message").visible, false);
        compare(findChild(root.area, "symbol").visible, false);
    }

    function test_rowsAreInTheOrderOfTheStore(): void {
        show(StoreHand.store(["B", "C", "A"]));
        compare(allRows().map(row => row.post.title), ["B", "C", "A"]);
        verifySettled();
        compare(card(0).x, 16);
        compare(card(0).width, root.area.width - 32);
        compare(placeOf(row(0)), 16);
    }

    function test_nothingMovesAtStartUp(): void {
        root.store = StoreHand.store(["A", "B", "C"]);
        root.window = createTemporaryObject(windows, root);
        root.area = createTemporaryObject(areas, root.window.contentItem, {
                "viewModel": root.store
            });
        root.list = findChild(root.area, "postList");
        wait(50);
        for (let frame = 0; frame < 10; ++frame) {
            compare(allRows().map(row => placeOf(row)), [16, 16 + row(0).height + 12, 16 + 2 * row(0).height + 24]);
            verify(allRows().every(row => row.children[0].opacity === 1));
            verify(allRows().every(row => findChild(row, "title").children[0].opacity === 1));
            compare(findChild(root.area, "message").visible, false);
            wait(16);
        }
    }

    function test_ofManyPosts_onlyThoseNearSightHaveACard(): void {
        show(StoreHand.store(names("P", 20000)));
        verify(allRows().length < 40);
        keyClick(Qt.Key_Tab);
        keyClick(Qt.Key_End);
        tryVerify(() => row(19999) && placeOf(row(19999)) < root.list.height);
        verify(allRows().length < 60);
    }

    function test_aDateOutOfEveryCalendarIsShownAndLeftAlone_data(): var {
        return [{
                "tag": "far future",
                "date": 1e300
            }, {
                "tag": "far past",
                "date": -1e300
            }, {
                "tag": "not a number",
                "date": NaN
            }, {
                "tag": "infinite",
                "date": Infinity
            }];
    }

    function test_aDateOutOfEveryCalendarIsShownAndLeftAlone(data: var): void {
        show(StoreHand.store([]));
        StoreHand.add(root.store, StoreHand.post("t", "d", "p", data.date));
        waitUntilSettled();
        verify(card(0).dateText.length > 0);
    }

    // One change, one movement
    function test_anAddedCardComesUpByItsOwnHeight(): void {
        show(StoreHand.store(["A", "B"]));
        const height = row(0).height;
        StoreHand.add(root.store, StoreHand.post("new"));
        compare(row(0).post.title, "new");
        fuzzyCompare(row(0).shift, row(0).height, 1);
        fuzzyCompare(card(0).opacity, 0, 0.05);
        fuzzyCompare(placeOf(row(1)), 16, 1);
        tryVerify(() => card(0).opacity > 0.2 && card(0).opacity < 0.9);
        verify(row(0).shift > 0);
        verify(placeOf(row(1)) > 16 && placeOf(row(1)) < 16 + height + 12);
        waitUntilSettled();
        verifySettled();
        compare(placeOf(row(0)), 16);
    }

    function test_aMovementTakesThreeTenthsOfASecond(): void {
        show(StoreHand.store(["A", "B"]));
        const start = Date.now();
        StoreHand.add(root.store, StoreHand.post("new"));
        tryVerify(() => card(0).opacity === 1 && row(0).shift === 0);
        const time = Date.now() - start;
        verify(time > 250 && time < 700, time);
    }

    function test_theEmptyStateTakesThreeTenthsOfASecond(): void {
        show(StoreHand.store([]));
        const message = findChild(root.area, "message");
        const start = Date.now();
        StoreHand.add(root.store, StoreHand.post("new"));
        tryVerify(() => !message.visible);
        const time = Date.now() - start;
        verify(time > 250 && time < 700, time);
    }

    // Slow, fast, slow: a quarter of the time is an eighth of the way.
    function test_everyMovementEasesInAndOut(): void {
        const pace = createTemporaryObject(paces, root);
        compare(pace.duration, 300);
        compare(pace.easing.type, Easing.Bezier);
        compare(pace.easing.bezierCurve, [0.42, 0, 0.58, 1, 1, 1]);
    }

    function test_aRemovedCardGoesDownByItsOwnHeight(): void {
        show(StoreHand.store(["A", "B", "C"]));
        const place = row(1).y;
        const height = row(1).height;
        StoreHand.remove(root.store, 1);
        compare(leavingRows().length, 1);
        const leaving = leavingRows()[0];
        compare(leaving.post.title, "B");
        tryVerify(() => leaving.opacity < 0.8 && leaving.opacity > 0.1);
        verify(leaving.y > place && leaving.y < place + height);
        verify(row(1).y < place + height + 12 && row(1).y > place);
        waitUntilSettled();
        verifySettled();
    }

    function test_aLeavingCardTakesNoInput(): void {
        show(StoreHand.store(["A"]));
        const menu = findChild(root.list, "cardMenu");
        StoreHand.remove(root.store, 0);
        compare(leavingRows()[0].enabled, false);
        mouseClick(root.area, 100, 60, Qt.RightButton);
        keyClick(Qt.Key_Menu);
        compare(menu.visible, false);
        waitUntilSettled();
    }

    function test_aChangedCardKeepsItsIdentity(): void {
        show(StoreHand.store(["A", "B", "C"]));
        const before = allRows();
        StoreHand.update(root.store, StoreHand.retitled(StoreHand.postAt(root.store, 1), "new"));
        compare(row(1), before[1]);
        compare(row(1).post.title, "new");
        compare(allRows().length, 3);
        waitUntilSettled();
        verifySettled();
    }

    function test_cardsKeepTheirIdentityThroughAnInsertionAndARemoval(): void {
        show(StoreHand.store(["A", "B", "C"]));
        const before = allRows();
        StoreHand.add(root.store, StoreHand.post("new"));
        compare([row(1), row(2), row(3)], before);
        StoreHand.remove(root.store, 2);
        compare([row(1), row(2)], [before[0], before[2]]);
        waitUntilSettled();
        verifySettled();
    }

    function test_theCardsBelowFollowTheHeightOfAChangedOne(): void {
        show(StoreHand.store(["A", "B"]));
        const place = row(1).y;
        StoreHand.update(root.store, StoreHand.described(StoreHand.postAt(root.store, 0), "line\n".repeat(8)));
        compare(row(1).y, place);
        tryVerify(() => row(1).y > place + 10);
        waitUntilSettled();
        verifySettled();
        verify(row(1).y > place + 100);
    }

    function test_aTextThatIsOnlyCanonicallyEqualIsShownAnew(): void {
        show(StoreHand.store(["\u00e9"]));
        StoreHand.update(root.store, StoreHand.retitled(StoreHand.postAt(root.store, 0), "e\u0301"));
        compare(card(0).title.length, 2);
        openMenuOf(0);
        choose(0);
        compare(StoreHand.edits()[0].title.length, 2);
        waitUntilSettled();
    }

    function test_anImportTakesAllCardsAwayAndBringsItsOwn(): void {
        show(StoreHand.store(names("old", 20)));
        scrollTo(300);
        const placesBefore = allRows().filter(row => placeOf(row) > -50 && placeOf(row) < 500).map(row => placeOf(row));
        StoreHand.replace(root.store, names("new", 12));
        const leaving = leavingRows().filter(row => placeOf(row) > -50 && placeOf(row) < 500);
        compare(leaving.map(row => placeOf(row)), placesBefore);
        compare(placeOf(row(0)), 16 + row(0).height);
        fuzzyCompare(card(0).opacity, 0, 0.05);
        tryVerify(() => card(0).opacity > 0.2 && leaving[0].opacity < 0.8);
        waitUntilSettled();
        verifySettled();
        compare(placeOf(row(0)), 16);
    }

    function test_theFirstPostTakesThePlaceOfTheEmptyState(): void {
        show(StoreHand.store([]));
        const message = findChild(root.area, "message");
        const symbol = findChild(root.area, "symbol");
        StoreHand.add(root.store, StoreHand.post("first"));
        verify(root.list.visible);
        tryVerify(() => symbol.scale > 0.1 && symbol.scale < 0.9);
        fuzzyCompare(message.parent.opacity, symbol.scale, 0.01);
        fuzzyCompare(card(0).opacity, 1 - symbol.scale, 0.15);
        waitUntilSettled();
        compare(message.visible, false);
        verifySettled();
    }

    function test_theEmptyStateTakesThePlaceOfTheLastPost(): void {
        show(StoreHand.store(["last"]));
        const symbol = findChild(root.area, "symbol");
        StoreHand.remove(root.store, 0);
        verify(root.list.visible);
        const leaving = leavingRows()[0];
        tryVerify(() => leaving.children[0].opacity > 0.1 && leaving.children[0].opacity < 0.9);
        verify(leaving.shift > 0);
        verify(symbol.visible);
        fuzzyCompare(symbol.scale, 1 - leaving.children[0].opacity, 0.15);
        tryCompare(symbol, "scale", 1);
        tryCompare(root.list, "visible", false);
        compare(findChild(root.area, "message").parent.opacity, 1);
    }

    // The reader's place
    function test_aNewPostIsBroughtIntoSight(): void {
        show(StoreHand.store(names("P", 30)));
        scrollTo(1500);
        StoreHand.add(root.store, StoreHand.post("new"));
        tryVerify(() => row(0) && Math.abs(placeOf(row(0)) - 16) < 0.5);
        waitUntilSettled();
        verifySettled();
        fuzzyCompare(placeOf(row(0)), 16, 0.5);
    }

    function test_aNewPostFarAwayIsBroughtIntoSight(): void {
        show(StoreHand.store(names("P", 5000)));
        root.list.positionViewAtEnd();
        wait(50);
        StoreHand.add(root.store, StoreHand.post("new"));
        waitUntilSettled();
        verifySettled();
        fuzzyCompare(placeOf(row(0)), 16, 0.5);
    }

    function test_aNewPostInTheMiddleIsBroughtIntoSight(): void {
        show(StoreHand.store(names("P", 60)));
        StoreHand.insert(root.store, 40, StoreHand.post("new"));
        waitUntilSettled();
        verifySettled();
        verify(placeOf(row(40)) >= 0 && placeOf(row(40)) + row(40).height <= root.list.height);
    }

    function test_whenAPostAboveChanges_theViewStays_data(): var {
        return [{
                "tag": "just above",
                "above": 1
            }, {
                "tag": "a few above",
                "above": 4
            }, {
                "tag": "far above",
                "above": 15
            }];
    }

    function test_whenAPostAboveChanges_theViewStays(data: var): void {
        show(StoreHand.store(names("P", 40)));
        scrollTo(20 * 86 + 5);
        wait(200);
        const first = allRows().find(row => placeOf(row) + row.height > 0);
        const place = placeOf(first);
        const index = first.index - data.above;
        StoreHand.update(root.store, StoreHand.described(StoreHand.postAt(root.store, index), "line\n".repeat(8)));
        for (let frame = 0; frame < 25; ++frame) {
            fuzzyCompare(placeOf(first), place, 0.5);
            wait(16);
        }
        StoreHand.update(root.store, StoreHand.described(StoreHand.postAt(root.store, index), ""));
        for (let frame = 0; frame < 25; ++frame) {
            fuzzyCompare(placeOf(first), place, 0.5);
            wait(16);
        }
        verifySettled();
    }

    function test_whenAPostAboveGoes_theViewStays(): void {
        show(StoreHand.store(names("P", 40)));
        scrollTo(1000);
        const first = allRows().find(row => placeOf(row) > 0);
        const place = placeOf(first);
        StoreHand.remove(root.store, 2);
        for (let frame = 0; frame < 25; ++frame) {
            fuzzyCompare(placeOf(first), place, 0.5);
            wait(16);
        }
        verifySettled();
    }

    function test_whenPostsGoFromTheEnd_theViewComesDownSmoothly_data(): var {
        return [{
                "tag": "the last",
                "fromEnd": 0
            }, {
                "tag": "one in the middle",
                "fromEnd": 2
            }];
    }

    function test_whenPostsGoFromTheEnd_theViewComesDownSmoothly(data: var): void {
        show(StoreHand.store(names("P", 20)));
        root.list.positionViewAtEnd();
        scrollTo(root.list.contentY + 16);
        wait(200);
        const shown = row(16);
        let place = placeOf(shown);
        const start = place;
        let largest = 0;
        StoreHand.remove(root.store, 19 - data.fromEnd);
        for (let frame = 0; frame < 30; ++frame) {
            largest = Math.max(largest, Math.abs(placeOf(shown) - place));
            place = placeOf(shown);
            wait(10);
        }
        verify(largest < 60, largest);
        fuzzyCompare(place, start + 98, 1);
        waitUntilSettled();
        verifySettled();
        fuzzyCompare(placeOf(row(18)) + row(18).height, root.list.height - 16, 0.5);
    }

    // Many changes at a time
    function test_tenPostsAddedInARow(): void {
        show(StoreHand.store(names("P", 5)));
        for (let i = 0; i < 10; ++i) {
            StoreHand.add(root.store, StoreHand.post("new" + i));
            wait(25);
        }
        waitUntilSettled();
        verifySettled();
        compare(placeOf(row(0)), 16);
    }

    function test_tenPostsAddedAtOnce(): void {
        show(StoreHand.store([]));
        for (let i = 0; i < 10; ++i)
            StoreHand.add(root.store, StoreHand.post("new" + i));
        waitUntilSettled();
        verifySettled();
        compare(placeOf(row(0)), 16);
    }

    function test_changesDuringTheMovementOfOthers(): void {
        show(StoreHand.store(names("P", 8)));
        StoreHand.remove(root.store, 1);
        wait(60);
        StoreHand.add(root.store, StoreHand.post("new", "line\nline\nline"));
        wait(60);
        StoreHand.update(root.store, StoreHand.described(StoreHand.postAt(root.store, 0), "line\n".repeat(7)));
        wait(60);
        StoreHand.remove(root.store, 0);
        wait(60);
        StoreHand.update(root.store, StoreHand.retitled(StoreHand.postAt(root.store, 2), "changed"));
        StoreHand.remove(root.store, 1);
        waitUntilSettled();
        verifySettled();
    }

    function test_removingEveryPostOneByOne(): void {
        show(StoreHand.store(names("P", 6)));
        for (let i = 0; i < 6; ++i) {
            StoreHand.remove(root.store, 0);
            wait(40);
        }
        waitUntilSettled();
        compare(allRows().length, 0);
        compare(root.list.visible, false);
    }

    function test_addingWhileTheLastPostLeaves(): void {
        show(StoreHand.store(["A"]));
        StoreHand.remove(root.store, 0);
        wait(120);
        StoreHand.add(root.store, StoreHand.post("B"));
        waitUntilSettled();
        verifySettled();
        compare(placeOf(row(0)), 16);
        tryCompare(findChild(root.area, "message"), "visible", false);
    }

    function test_anyChangesInARow(): void {
        show(StoreHand.store(names("P", 6)));
        // A fixed sequence that looks like chance.
        let seed = 7;
        const next = bound => {
            seed = (seed * 1103515245 + 12345) % 2147483648;
            return Math.floor(seed / 65536) % bound;
        };
        for (let i = 0; i < 60; ++i) {
            const count = root.list.count;
            const what = next(5);
            if (what === 0 || count === 0)
                StoreHand.add(root.store, StoreHand.post("add" + i, "line\n".repeat(next(6))));
            else if (what === 1)
                StoreHand.remove(root.store, next(count));
            else if (what === 2)
                StoreHand.update(root.store, StoreHand.described(StoreHand.postAt(root.store, next(count)), "line\n".repeat(next(9))));
            else if (what === 3)
                StoreHand.insert(root.store, next(count + 1), StoreHand.post("insert" + i));
            else if (next(6) === 0)
                StoreHand.replace(root.store, names("import" + i, next(12)));
            if (next(3) > 0)
                wait(next(90));
        }
        waitUntilSettled();
        verifySettled();
    }

    // Keys
    function test_tabEntersAndLeavesTheList(): void {
        show(StoreHand.store(["A", "B", "C"]));
        const before = createTemporaryObject(buttons, root.window.contentItem);
        before.forceActiveFocus();
        keyClick(Qt.Key_Tab);
        verify(card(0).activeFocus);
        verify(findChild(card(0), "focusRing").visible);
        keyClick(Qt.Key_Tab);
        verify(before.activeFocus);
        keyClick(Qt.Key_Backtab);
        verify(card(0).activeFocus);
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Backtab);
        verify(before.activeFocus);
        keyClick(Qt.Key_Tab);
        verify(card(1).activeFocus);
    }

    function test_arrowsMoveTheFocusAndScroll(): void {
        show(StoreHand.store(names("P", 20)));
        root.area.forceActiveFocus(Qt.TabFocusReason);
        for (let i = 1; i < 12; ++i) {
            keyClick(Qt.Key_Down);
            verifyFocused(i);
        }
        tryVerify(() => row(11) && placeOf(row(11)) >= 15.5 && placeOf(row(11)) + row(11).height <= root.list.height - 15.5);
        for (let j = 0; j < 15; ++j)
            keyClick(Qt.Key_Up);
        verifyFocused(0);
        tryVerify(() => row(0) && Math.abs(placeOf(row(0)) - 16) < 0.5);
    }

    function test_homeEndAndPages(): void {
        show(StoreHand.store(names("P", 40)));
        root.area.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_End);
        tryVerify(() => card(39) && card(39).activeFocus);
        tryVerify(() => Math.abs(placeOf(row(39)) + row(39).height - root.list.height + 16) < 0.5);
        keyClick(Qt.Key_Home);
        tryVerify(() => card(0) && card(0).activeFocus && Math.abs(placeOf(row(0)) - 16) < 0.5);
        const page = root.list.height;
        const start = root.list.contentY;
        keyClick(Qt.Key_PageDown);
        tryVerify(() => root.list.contentY > start + page / 2);
        wait(350);
        verify(root.list.currentItem.activeFocus);
        verify(placeOf(root.list.currentItem) >= 0 && placeOf(root.list.currentItem) < 120);
        keyClick(Qt.Key_PageUp);
        wait(400);
        fuzzyCompare(root.list.contentY, start, 1);
        compare(root.list.currentIndex, 0);
        for (let i = 0; i < 12; ++i) {
            keyClick(Qt.Key_PageDown);
            wait(20);
        }
        wait(400);
        compare(root.list.currentIndex, 39);
    }

    function test_aCardThatIsHigherThanTheViewIsReadByArrows(): void {
        show(StoreHand.store(["A", "B"]));
        StoreHand.add(root.store, StoreHand.post("long", "line\n".repeat(120)));
        waitUntilSettled();
        root.area.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Home);
        compare(root.list.currentIndex, 0);
        let steps = 0;
        while (root.list.currentIndex === 0 && steps < 40) {
            keyClick(Qt.Key_Down);
            wait(350);
            ++steps;
        }
        verify(steps > 3 && steps < 20, steps);
        compare(root.list.currentIndex, 1);
    }

    function test_aFingerScrollsAndOpensNoMenu(): void {
        show(StoreHand.store(names("P", 40)));
        const finger = touchEvent(root.list);
        finger.press(0, root.list, 200, 400).commit();
        for (let y = 400; y > 200; y -= 20) {
            wait(20);
            finger.move(0, root.list, 200, y).commit();
        }
        // Longer than a touch that opens the menu.
        wait(1000);
        finger.release(0, root.list, 200, 200).commit();
        verify(root.list.contentY > 100);
        compare(menu().visible, false);
    }

    function test_aFingerThatRestsOpensTheMenu(): void {
        show(StoreHand.store(["A", "B"]));
        const finger = touchEvent(root.list);
        const place = card(1).mapToItem(root.list, 60, 30);
        finger.press(0, root.list, place.x, place.y).commit();
        tryCompare(menu(), "opened", true);
        finger.release(0, root.list, place.x, place.y).commit();
        wait(50);
        compare(menu().opened, true);
        compare(menu().post.title, "B");
        compare(findChild(card(1), "focusRing").visible, false);
    }

    function test_theWheelScrolls(): void {
        show(StoreHand.store(names("P", 40)));
        mouseWheel(root.list, 100, 100, 0, -240);
        tryVerify(() => root.list.contentY > 50);
    }

    // The focus
    function test_whenTheFocusedCardGoes_theNextHasTheFocus(): void {
        show(StoreHand.store(["A", "B", "C"]));
        root.area.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Down);
        StoreHand.remove(root.store, 1);
        verify(card(1).activeFocus);
        compare(row(1).post.title, "C");
        waitUntilSettled();
        verify(card(1).activeFocus);
    }

    function test_whenTheFocusedLastCardGoes_theOneBeforeHasTheFocus(): void {
        show(StoreHand.store(["A", "B"]));
        root.area.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Down);
        StoreHand.remove(root.store, 1);
        verify(card(0).activeFocus);
        waitUntilSettled();
        verify(card(0).activeFocus);
        compare(focusLeft.count, 0);
    }

    function test_whenTheOnlyCardGoes_theFocusLeaves(): void {
        show(StoreHand.store(["A"]));
        root.area.forceActiveFocus(Qt.TabFocusReason);
        StoreHand.remove(root.store, 0);
        compare(focusLeft.count, 1);
        waitUntilSettled();
        compare(focusLeft.count, 1);
    }

    function test_whenAnotherCardGoes_theFocusStays(): void {
        show(StoreHand.store(["A", "B", "C"]));
        root.area.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Down);
        StoreHand.remove(root.store, 0);
        compare(row(0).post.title, "B");
        verify(card(0).activeFocus);
        StoreHand.add(root.store, StoreHand.post("new"));
        verify(card(1).activeFocus);
        compare(row(1).post.title, "B");
        waitUntilSettled();
    }

    function test_withoutTheFocus_aChangeDoesNotTakeIt(): void {
        show(StoreHand.store(["A", "B"]));
        const other = createTemporaryObject(buttons, root.window.contentItem);
        other.forceActiveFocus();
        StoreHand.remove(root.store, 0);
        StoreHand.add(root.store, StoreHand.post("new"));
        StoreHand.replace(root.store, ["X"]);
        StoreHand.replace(root.store, []);
        verify(other.activeFocus);
        compare(focusLeft.count, 0);
        waitUntilSettled();
    }

    function test_anImportKeepsTheFocusInTheList(): void {
        show(StoreHand.store(["A", "B"]));
        root.area.forceActiveFocus(Qt.TabFocusReason);
        StoreHand.replace(root.store, ["X", "Y", "Z"]);
        verify(root.list.currentItem.activeFocus);
        waitUntilSettled();
        verify(root.list.currentItem.activeFocus);
    }

    // The menu
    function menu(): QtObject {
        return findChild(root.list, "cardMenu");
    }

    function openMenuOf(index: int): void {
        mouseClick(card(index), 60, 30, Qt.RightButton);
        tryCompare(menu(), "opened", true);
    }

    function choose(item: int): void {
        mouseClick(menu().itemAt(item));
        tryCompare(menu(), "visible", false);
    }

    function test_theMenuHasTwoItems(): void {
        show(StoreHand.store(["A"]));
        openMenuOf(0);
        compare(menu().count, 2);
        compare(menu().itemAt(0).text, "Edit Post");
        compare(menu().itemAt(1).text, "Delete Post");
        keyClick(Qt.Key_Escape);
        tryCompare(menu(), "visible", false);
        verify(card(0).activeFocus);
    }

    function test_menuKeysOpenTheMenuOfTheFocusedCard(): void {
        show(StoreHand.store(["A", "B"]));
        root.area.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_F10, Qt.ShiftModifier);
        tryCompare(menu(), "opened", true);
        compare(menu().post.title, "B");
        compare(menu().currentIndex, 0);
        keyClick(Qt.Key_Escape);
        tryCompare(menu(), "visible", false);
        keyClick(Qt.Key_Menu);
        tryCompare(menu(), "opened", true);
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Return);
        tryCompare(menu(), "visible", false);
        compare(StoreHand.titles(root.store), ["A"]);
        waitUntilSettled();
        verify(card(0).activeFocus);
    }

    function test_editPostAsksWithTheCardsOwnPost(): void {
        show(StoreHand.store(["A", "B"]));
        openMenuOf(1);
        choose(0);
        compare(StoreHand.edits().length, 1);
        compare(StoreHand.edits()[0].title, "B");
        compare(StoreHand.edits()[0].id, StoreHand.postAt(root.store, 1).id);
        compare(StoreHand.titles(root.store), ["A", "B"]);
        verify(!StoreHand.saved());
    }

    function test_editPostHoldsTheValuesOfTheMomentTheMenuWasOpened(): void {
        show(StoreHand.store(["A", "B"]));
        openMenuOf(1);
        StoreHand.update(root.store, StoreHand.retitled(StoreHand.postAt(root.store, 1), "later"));
        choose(0);
        compare(StoreHand.edits()[0].title, "B");
        waitUntilSettled();
    }

    function test_editPostWorksWhenTheCardHasGone(): void {
        show(StoreHand.store(["A", "B"]));
        openMenuOf(1);
        StoreHand.remove(root.store, 1);
        waitUntilSettled();
        choose(0);
        compare(StoreHand.edits().length, 1);
        compare(StoreHand.edits()[0].title, "B");
    }

    function test_deletePostDeletesByIdThoughTheCopyIsOutOfDate(): void {
        show(StoreHand.store(["A", "B", "C"]));
        openMenuOf(1);
        StoreHand.update(root.store, StoreHand.retitled(StoreHand.postAt(root.store, 1), "later"));
        StoreHand.add(root.store, StoreHand.post("new"));
        choose(1);
        compare(StoreHand.titles(root.store), ["new", "A", "C"]);
        verify(StoreHand.saved());
        compare(StoreHand.edits().length, 0);
        waitUntilSettled();
        verifySettled();
    }

    function test_deletePostOfTwoThatShareAnId_deletesTheFirst_data(): var {
        return [{
                "tag": "on the first",
                "index": 0
            }, {
                "tag": "on the second",
                "index": 1
            }];
    }

    function test_deletePostOfTwoThatShareAnId_deletesTheFirst(data: var): void {
        const store = StoreHand.store(["second"]);
        StoreHand.add(store, StoreHand.retitled(StoreHand.postAt(store, 0), "first"));
        show(store);
        openMenuOf(data.index);
        choose(1);
        compare(StoreHand.titles(root.store), ["second"]);
        waitUntilSettled();
        verifySettled();
    }

    function test_deletePostOfOneThatHasGone_doesNothing(): void {
        show(StoreHand.store(["A", "B"]));
        openMenuOf(1);
        StoreHand.remove(root.store, 1);
        StoreHand.forgetSaved();
        choose(1);
        compare(StoreHand.titles(root.store), ["A"]);
        verify(!StoreHand.saved());
        waitUntilSettled();
    }

    function test_deletingTheOnlyPostByItsMenu_leavesTheFocusOnce(): void {
        show(StoreHand.store(["A"]));
        openMenuOf(0);
        choose(1);
        compare(focusLeft.count, 1);
        waitUntilSettled();
        compare(focusLeft.count, 1);
    }

    function test_aSecondaryClickLeavesNoRing(): void {
        show(StoreHand.store(["A", "B"]));
        openMenuOf(1);
        keyClick(Qt.Key_Escape);
        tryCompare(menu(), "visible", false);
        compare(findChild(card(1), "focusRing").visible, false);
        keyClick(Qt.Key_Up);
        compare(findChild(card(0), "focusRing").visible, true);
    }

    SignalSpy {
        id: focusLeft

        signalName: "focusLeft"
    }

    Component {
        id: windows

        ApplicationWindow {
            width: 700
            height: 500
            visible: true
        }
    }

    Component {
        id: areas

        PostsArea {
            anchors.fill: parent
            focus: true
        }
    }

    Component {
        id: paces

        EasedAnimation {
        }
    }

    Component {
        id: buttons

        Button {
            z: -1
            width: 1
            height: 1
        }
    }
}
