import QtQuick
import QtTest
import Tavlo
import TavloTest

WindowCase {
    id: root

    function init(): void {
        Probe.setTextSize(26);
        openWindow([]);
    }

    function cleanup(): void {
        Probe.setTextSize(0);
        Probe.setRightToLeft(false);
    }

    function inside(item: Item, frame: Item): bool {
        const inner = place(item);
        const outer = place(frame);
        return inner.left >= outer.left && inner.right <= outer.right && inner.top >= outer.top && inner.bottom <= outer.bottom;
    }

    function test_theTextIsTwiceItsSize(): void {
        compare(Theme.bodySize, 26);
        compare(Theme.largeTitleSize, 52);
    }

    function test_theHeaderFitsTheLeastWindow(): void {
        root.app.width = root.app.minimumWidth;
        root.app.height = root.app.minimumHeight;
        waitForLayout();
        const names = ["newPostButton", "exportButton", "importButton", "settingsButton"];
        for (const name of names)
            verify(inside(part(name), root.view), name);
        for (let i = 0; i < names.length; ++i) {
            for (let j = 0; j < i; ++j) {
                const one = place(part(names[i]));
                const other = place(part(names[j]));
                verify(one.left >= other.right || other.left >= one.right || one.top >= other.bottom || other.top >= one.bottom, names[i] + " beside " + names[j]);
            }
        }
    }

    function test_everyControlOfASheetCanBeReached_data(): var {
        return [{
                "tag": "editorSheet",
                "size": Qt.size(700, 600),
                "buttons": ["cancelButton", "saveButton"],
                "fields": ["titleField", "descriptionField", "permalinkField", "dateField"]
            }, {
                "tag": "settingsSheet",
                "size": Qt.size(500, 300),
                "buttons": ["cancelButton", "saveButton"],
                "fields": ["titleField", "linkField", "descriptionField"]
            }, {
                "tag": "exportSheet",
                "size": Qt.size(500, 0),
                "buttons": ["cancelButton", "exportButton"],
                "fields": ["pathField"]
            }];
    }

    function test_everyControlOfASheetCanBeReached(data: var): void {
        openSheet(data.tag);
        const frame = form(data.tag);
        compare(frame.width, data.size.width);
        if (data.size.height > 0)
            compare(frame.height, data.size.height);
        if (data.tag === "editorSheet")
            keyClick("x");
        for (const name of data.buttons)
            verify(inside(control(data.tag, name), frame), name);
        const seen = {};
        for (let i = 0; i < 30; ++i) {
            for (const name of data.fields.concat(data.buttons)) {
                const item = control(data.tag, name);
                if (item.activeFocus) {
                    seen[name] = true;
                    // The part that has the focus is in sight, above the buttons.
                    const focused = root.app.activeFocusItem;
                    const place_ = place(focused);
                    verify(place_.top >= place(frame).top, name + " from the top");
                    verify(place_.top + Math.min(place_.height, 30) <= place(frame).bottom, name + " to the bottom");
                    if (data.fields.includes(name))
                        verify(place_.top + Math.min(place_.height, 30) <= place(control(data.tag, data.buttons[0])).top, name + " above the buttons");
                }
            }
            keyClick(Qt.Key_Tab);
        }
        compare(Object.keys(seen).length, data.fields.length + data.buttons.length);
    }

    function test_labelsAndFieldsDoNotOverlap_data(): var {
        return [{
                "tag": "editorSheet"
            }, {
                "tag": "settingsSheet"
            }];
    }

    function test_labelsAndFieldsDoNotOverlap(data: var): void {
        openSheet(data.tag);
        const frame = form(data.tag);
        const labels = shownItems(frame).filter(item => item as FormLabel);
        const names = data.tag === "editorSheet" ? ["titleField", "permalinkField", "dateField"] : ["titleField", "linkField", "descriptionField"];
        for (let i = 0; i < names.length; ++i) {
            const field = place(control(data.tag, names[i]));
            const label = place(labels[i]);
            verify(label.right <= field.left || label.bottom <= field.top, names[i]);
            verify(field.right <= place(frame).right, names[i] + " in the frame");
            verify(field.width >= 100, names[i] + " of " + field.width);
            verify(labels[i].contentWidth <= labels[i].width + 1 && !labels[i].truncated, names[i] + "'s label");
        }
    }

    // The part of a form that shows, and its fades.
    function formArea(sheetName: string): Item {
        return shownItems(form(sheetName)).find(item => item as FormArea);
    }

    function fades(sheetName: string): var {
        return shownItems(formArea(sheetName)).filter(item => item as EdgeFade && item.parent === formArea(sheetName)).map(fade => fade.edge).sort();
    }

    function test_aFieldThatHasTheFocusIsWhollyInSight_data(): var {
        return [{
                "tag": "editorSheet",
                "size": 26
            }, {
                "tag": "editorSheet at four times the size",
                "sheet": "editorSheet",
                "size": 52
            }, {
                "tag": "settingsSheet",
                "size": 26
            }];
    }

    function test_aFieldThatHasTheFocusIsWhollyInSight(data: var): void {
        Probe.setTextSize(data.size);
        const sheet = data.sheet ?? data.tag;
        openSheet(sheet);
        if (sheet === "editorSheet")
            control(sheet, "descriptionField").source = "line\n".repeat(50);
        waitForLayout();
        const names = sheet === "editorSheet" ? ["titleField", "descriptionField", "permalinkField", "dateField"] : ["titleField", "linkField", "descriptionField"];
        const seen = {};
        for (let i = 0; i < 24; ++i) {
            keyClick(i < 12 ? Qt.Key_Tab : Qt.Key_Backtab, i < 12 ? Qt.NoModifier : Qt.ShiftModifier);
            waitForLayout();
            for (const name of names) {
                const field = control(sheet, name);
                if (field.activeFocus) {
                    seen[name] = true;
                    verify(inside(field, formArea(sheet)), name);
                }
            }
        }
        compare(Object.keys(seen).length, names.length);
    }

    function test_theLabelAboveAFieldThatHasTheFocusIsInSightToo(): void {
        openSheet("settingsSheet");
        waitForLayout();
        const labels = shownItems(form("settingsSheet")).filter(item => item as FormLabel);
        compare(labels.length, 3);
        const names = ["titleField", "linkField", "descriptionField"];
        for (const i of [1, 2, 1, 0]) {
            control("settingsSheet", names[i]).forceActiveFocus(Qt.TabFocusReason);
            verify(inside(labels[i], formArea("settingsSheet")), names[i]);
        }
    }

    function test_ofAFieldHigherThanItsViewTheCursorIsInSight(): void {
        openSheet("editorSheet");
        part("editorSheet").height = 240;
        const field = control("editorSheet", "descriptionField");
        const area = field.textArea;
        field.forceActiveFocus();
        waitForLayout();
        compare(field.height > formArea("editorSheet").height, true);
        const line = () => area.mapToItem(formArea("editorSheet"), area.cursorRectangle);
        for (const key of [Qt.Key_Return, Qt.Key_Return, Qt.Key_Return, Qt.Key_Return, Qt.Key_Up, Qt.Key_Up, Qt.Key_Up, Qt.Key_Up]) {
            keyClick(key);
            tryVerify(() => line().top >= 0 && line().bottom <= formArea("editorSheet").height, 1000, "" + line());
        }
    }

    function test_settingsHaveTheirLabelsAboveTheFields(): void {
        openSheet("settingsSheet");
        waitForLayout();
        const label = shownItems(form("settingsSheet")).find(item => item as FormLabel);
        const field = control("settingsSheet", "titleField");
        verify(place(label).bottom <= place(field).top);
        compare(place(label).left, place(field).left);
        verify(field.width > 0.8 * form("settingsSheet").width);
        Probe.setTextSize(13);
        waitForLayout();
        tryVerify(() => place(label).right <= place(field).left);
    }

    function test_labelsAboveTheirFieldsStandWhereReadingStarts(): void {
        Probe.setRightToLeft(true);
        openSheet("settingsSheet");
        waitForLayout();
        const label = shownItems(form("settingsSheet")).find(item => item as FormLabel);
        compare(place(label).right, place(control("settingsSheet", "titleField")).right);
    }

    function test_aFormFadesWhereItGoesOn(): void {
        openSheet("settingsSheet");
        waitForLayout();
        compare(fades("settingsSheet"), [Qt.BottomEdge]);
        keyClick(Qt.Key_Tab);
        waitForLayout();
        compare(fades("settingsSheet"), [Qt.TopEdge, Qt.BottomEdge]);
        keyClick(Qt.Key_Tab);
        waitForLayout();
        compare(fades("settingsSheet"), [Qt.TopEdge]);
        Probe.setTextSize(13);
        tryVerify(() => fades("settingsSheet").length === 0);
    }

    function test_thePathHasTheHeightOfItsLine(): void {
        openSheet("exportSheet");
        const field = control("exportSheet", "pathField");
        const sheet = form("exportSheet");
        const high = sheet.height;
        tryVerify(() => field.height < 2 * Theme.bodySize + 2 * Theme.controlPadding);
        keyClick(Qt.Key_Delete);
        tryVerify(() => field.height > 2 * Theme.bodySize + 2 * Theme.controlPadding);
        tryVerify(() => sheet.height > high && sheet.height === sheet.implicitHeight);
    }

    function test_theScrollBarOfAFormIsBesideItsFields_data(): var {
        return [{
                "tag": "from the left",
                "rightToLeft": false
            }, {
                "tag": "from the right",
                "rightToLeft": true
            }];
    }

    function test_theScrollBarOfAFormIsBesideItsFields(data: var): void {
        Probe.setRightToLeft(data.rightToLeft);
        openSheet("settingsSheet");
        waitForLayout();
        const frame = place(form("settingsSheet"));
        const bar = place(shownItems(form("settingsSheet")).find(item => item as ScrollIndicatorBar));
        const field = place(control("settingsSheet", "titleField"));
        if (data.rightToLeft)
            verify(bar.left >= frame.left && field.left >= bar.right);
        else
            verify(bar.right <= frame.right && field.right <= bar.left);
    }

    name: "LargeText"
}
