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
