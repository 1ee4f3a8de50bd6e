import QtQuick
import QtTest
import Tavlo
import TavloTest

Item {
    id: root

    width: 500
    height: 400

    Component {
        id: promptComponent

        ExportPromptView {
            width: 500
            height: implicitHeight
        }
    }

    SignalSpy {
        id: edits

        signalName: "exportPathEdited"
    }

    SignalSpy {
        id: exports

        signalName: "exportRequested"
    }

    SignalSpy {
        id: dismissals

        signalName: "dismissed"
    }

    TestCase {
        id: test

        function open(properties: var): ExportPromptView {
            const prompt = createTemporaryObject(promptComponent, root, properties) as ExportPromptView;
            prompt.forceActiveFocus();
            for (const spy of [edits, exports, dismissals]) {
                spy.target = prompt;
                spy.clear();
            }
            waitForRendering(prompt);
            return prompt;
        }

        function field(prompt: Item, name: string): Item {
            const found = test.findChild(prompt, name);
            test.verify(found, name);
            return found;
        }

        function focusOn(prompt: Item, name: string): void {
            const found = test.field(prompt, name);
            found.forceActiveFocus(Qt.TabFocusReason);
            test.verify(found.activeFocus, name + " takes the focus");
        }

        // What is one below the other.
        function rows(prompt: Item): var {
            const column = test.field(prompt, "pathField").parent;
            return Array.from(column.children).filter(row => row.visible && row.height > 0);
        }

        function test_itHasThreeRowsWithoutAnError(): void {
            const prompt = test.open({
                    "exportPath": "/tmp/feed.xml"
                });
            const shown = rows(prompt);
            compare(shown.length, 3);
            compare(shown[0].text, "Export RSS Feed");
            verify(shown[0].font.bold);
            compare(shown[0].font.pixelSize, Math.round(Theme.title2Size));
            compare(shown[1], field(prompt, "pathField"));
            compare(shown[2], field(prompt, "cancelButton").parent);
            for (let i = 1; i < 3; ++i)
                verify(shown[i].y > shown[i - 1].y);
        }

        function test_anErrorIsALineOfItsOwnBelowTheField(): void {
            const prompt = test.open({
                    "exportError": "The disk is full"
                });
            const line = field(prompt, "errorLine");
            compare(rows(prompt).length, 4);
            compare(rows(prompt)[2], line);
            compare(line.text, "❌ The disk is full");
            compare(line.color, Theme.error);
            const low = prompt.height;
            prompt.exportError = undefined;
            waitForRendering(prompt);
            compare(rows(prompt).length, 3);
            verify(prompt.height < low);
            compare(line.text, "");
        }

        function test_anErrorWithoutWordsIsShownToo(): void {
            const prompt = test.open({
                    "exportError": ""
                });
            compare(rows(prompt).length, 4);
            compare(field(prompt, "errorLine").text, "❌ ");
        }

        function test_anErrorIsShownAsTyped(): void {
            const prompt = test.open({
                    "exportError": "<b>bold</b> <img src='x'>"
                });
            const line = field(prompt, "errorLine");
            compare(line.textFormat, Text.PlainText);
            compare(line.text, "❌ <b>bold</b> <img src='x'>");
        }

        function test_rowsAndButtonsAreInOrder(): void {
            const prompt = test.open({});
            const cancel = field(prompt, "cancelButton");
            const exportFeed = field(prompt, "exportButton");
            compare(cancel.text, "Cancel");
            compare(exportFeed.text, "Export");
            verify(cancel.x + cancel.width < exportFeed.x);
            // Between the title and the field: the stack's spacing and the field's own padding.
            const shown = rows(prompt);
            compare(shown[1].y - shown[0].y - shown[0].height, 20 + Theme.padding);
            compare(shown[1].x, Theme.padding);
        }

        function test_thePathIsSelectedOnOpening(): void {
            const prompt = test.open({
                    "exportPath": "/home/user/Desktop/feed.xml"
                });
            const path = field(prompt, "pathField");
            verify(path.activeFocus);
            compare(path.text, "/home/user/Desktop/feed.xml");
            compare(path.selectedText, "/home/user/Desktop/feed.xml");
            compare(edits.count, 0);
            keyClick("x");
            compare(path.text, "x");
            compare(edits.signalArguments[edits.count - 1][0], "x");
        }

        function test_anEmptyFieldSaysWhatItIsFor(): void {
            const path = field(test.open({}), "pathField");
            compare(path.placeholderText, "Enter full file path (e.g. /Users/you/Desktop/feed.xml)");
            const told = Probe.accessible(path);
            compare(told.role, "EditableText");
            verify(told.name !== "");
        }

        function test_returnExportsWhateverHasTheFocus_data(): var {
            const rows = [];
            for (const name of ["pathField", "cancelButton", "exportButton"]) {
                for (const key of [Qt.Key_Return, Qt.Key_Enter]) {
                    rows.push({
                            "tag": name + (key === Qt.Key_Enter ? " keypad" : ""),
                            "name": name,
                            "key": key
                        });
                }
            }
            return rows;
        }

        function test_returnExportsWhateverHasTheFocus(data: var): void {
            const prompt = test.open({});
            focusOn(prompt, data.name);
            keyClick(data.key, data.key === Qt.Key_Enter ? Qt.KeypadModifier : Qt.NoModifier);
            compare(exports.count, 1);
            compare(dismissals.count, 0);
        }

        function test_returnWithAModifierIsAnotherKey_data(): var {
            return [{
                    "tag": "Shift",
                    "modifier": Qt.ShiftModifier
                }, {
                    "tag": "Ctrl",
                    "modifier": Qt.ControlModifier
                }, {
                    "tag": "Alt",
                    "modifier": Qt.AltModifier
                }, {
                    "tag": "Meta",
                    "modifier": Qt.MetaModifier
                }];
        }

        function test_returnWithAModifierIsAnotherKey(data: var): void {
            test.open({});
            keyClick(Qt.Key_Return, data.modifier);
            keyClick(Qt.Key_Enter, data.modifier | Qt.KeypadModifier);
            compare(exports.count, 0);
        }

        function test_anExportTakesWhatIsComposed(): void {
            const prompt = test.open({});
            Probe.compose("/かな");
            prompt.requestExport();
            compare(edits.signalArguments[edits.count - 1][0], "/かな");
            compare(exports.count, 1);
        }

        function test_returnEndsACompositionBeforeItExports(): void {
            test.open({});
            Probe.compose("/かな");
            keyClick(Qt.Key_Return);
            compare(exports.count, 0);
            compare(edits.signalArguments[edits.count - 1][0], "/かな");
            keyClick(Qt.Key_Return);
            compare(exports.count, 1);
        }

        function test_thePathOfTheOwnerIsThatOfTheField(): void {
            const prompt = test.open({
                    "exportPath": "/first"
                });
            const path = field(prompt, "pathField");
            keyClick(Qt.Key_End);
            keyClick("x");
            compare(path.text, "/firstx");
            path.cursorPosition = 3;
            prompt.exportPath = "/firstx";
            compare(path.cursorPosition, 3);
            prompt.exportPath = "/second";
            compare(path.text, "/second");
            prompt.exportPath = "";
            compare(path.text, "");
        }

        function test_escapeIsBoundToNothing_data(): var {
            return [{
                    "tag": "pathField"
                }, {
                    "tag": "cancelButton"
                }, {
                    "tag": "exportButton"
                }];
        }

        function test_escapeIsBoundToNothing(data: var): void {
            const prompt = test.open({
                    "exportPath": "/tmp/feed.xml"
                });
            focusOn(prompt, data.tag);
            keyClick(Qt.Key_Escape);
            compare(exports.count, 0);
            compare(dismissals.count, 0);
            compare(field(prompt, "pathField").text, "/tmp/feed.xml");
        }

        function test_buttonsTakeClicksAndSpace(): void {
            const prompt = test.open({});
            mouseClick(field(prompt, "cancelButton"));
            compare(dismissals.count, 1);
            focusOn(prompt, "cancelButton");
            keyClick(Qt.Key_Space);
            compare(dismissals.count, 2);
            compare(exports.count, 0);
            mouseClick(field(prompt, "exportButton"));
            compare(exports.count, 1);
            focusOn(prompt, "exportButton");
            keyClick(Qt.Key_Space);
            compare(exports.count, 2);
            verify(Probe.pressAccessibly(field(prompt, "exportButton")));
            compare(exports.count, 3);
            compare(dismissals.count, 2);
        }

        function test_tabGoesRound(): void {
            const prompt = test.open({});
            for (const name of ["pathField", "cancelButton", "exportButton", "pathField"]) {
                verify(field(prompt, name).activeFocus, name);
                keyClick(Qt.Key_Tab);
            }
        }

        function test_aLongPathIsKeptWhole(): void {
            const prompt = test.open({});
            const lengthy = "/folder".repeat(15000);
            Probe.setClipboard(lengthy);
            keySequence("Ctrl+V");
            verify(edits.signalArguments[edits.count - 1][0] === lengthy);
            verify(field(prompt, "pathField").width <= 500);
        }

        function test_aPromptThatLeavesTakesNoInput(): void {
            const prompt = test.open({});
            prompt.isPresented = false;
            keyClick(Qt.Key_Return);
            mouseClick(field(prompt, "cancelButton"));
            mouseClick(field(prompt, "exportButton"));
            prompt.requestExport();
            prompt.cancel();
            compare(exports.count, 0);
            compare(dismissals.count, 0);
        }

        name: "ExportPromptView"
        when: windowShown
    }
}
