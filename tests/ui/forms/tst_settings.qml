import QtQuick
import QtTest
import Tavlo
import TavloTest

Item {
    id: root

    property BlogViewModel store: null

    width: 500
    height: 300

    // An owner that does what the form asks for.
    Component {
        id: settingsComponent

        BlogSettingsView {
            id: settings

            width: 500
            height: 300
            onDismissed: settings.isPresented = false
        }
    }

    SignalSpy {
        id: dismissals

        signalName: "dismissed"
    }

    SignalSpy {
        id: changes

        signalName: "objectWillChange"
    }

    TestCase {
        id: test

        readonly property var fields: ["titleField", "linkField", "descriptionField"]
        readonly property string file: "rss_settings.json"

        function open(): BlogSettingsView {
            const settings = createTemporaryObject(settingsComponent, root, {
                    "viewModel": root.store
                }) as BlogSettingsView;
            settings.forceActiveFocus();
            dismissals.target = settings;
            dismissals.clear();
            changes.clear();
            return settings;
        }

        function type(text: string): void {
            for (const character of text)
                test.keyClick(character);
        }

        function field(settings: Item, name: string): Item {
            const found = test.findChild(settings, name);
            test.verify(found, name);
            return found;
        }

        function focusOn(settings: Item, name: string): Item {
            const found = test.field(settings, name);
            found.forceActiveFocus(Qt.TabFocusReason);
            test.verify(found.activeFocus, name + " takes the focus");
            return found;
        }

        function replaceAll(settings: Item, text: string): void {
            for (const name of test.fields) {
                test.focusOn(settings, name);
                test.keySequence("Ctrl+A");
                test.keyClick(Qt.Key_Delete);
                test.type(text);
            }
        }

        function texts(settings: Item): var {
            return test.fields.map(name => test.field(settings, name).text);
        }

        function stored(store: BlogViewModel): var {
            return [store.blogTitle, store.blogLink, store.blogDescription];
        }

        function init(): void {
            Probe.forgetAll();
            root.store = Probe.newStore();
            changes.target = root.store;
        }

        function test_aFreshStartShowsTheDefaults(): void {
            const settings = test.open();
            compare(field(settings, "titleField").text, "My Tavlo");
            compare(texts(settings), stored(root.store));
            verify(texts(settings).every(text => text !== ""));
            verify(field(settings, "titleField").activeFocus);
        }

        function test_saveWithEveryFieldEmptiedStoresEmptyTexts(): void {
            const settings = test.open();
            replaceAll(settings, "");
            const save = field(settings, "saveButton");
            verify(save.enabled);
            mouseClick(save);
            compare(stored(root.store), ["", "", ""]);
            compare(stored(Probe.newStore()), ["", "", ""]);
            compare(dismissals.count, 1);
            verify(Probe.feed(root.store).includes("<title></title>"));
        }

        function test_saveWithoutAChangeRewritesTheFile(): void {
            test.open();
            mouseClick(field(test.open(), "saveButton"));
            const content = Probe.read(test.file);
            const before = Probe.stateOf(test.file);
            wait(20);
            mouseClick(field(test.open(), "saveButton"));
            compare(Probe.read(test.file), content);
            verify(Probe.stateOf(test.file) !== before);
        }

        function test_eachSettingIsAnnounced(): void {
            const settings = test.open();
            mouseClick(field(settings, "saveButton"));
            compare(changes.count, 3);
        }

        function test_textsAreStoredAsTyped(): void {
            const settings = test.open();
            replaceAll(settings, " bare word <&>  ");
            keyClick(Qt.Key_Return);
            compare(stored(root.store), [" bare word <&>  ", " bare word <&>  ", " bare word <&>  "]);
            compare(stored(Probe.newStore()), stored(root.store));
        }

        function test_returnSavesWhateverHasTheFocus_data(): var {
            const rows = [];
            for (const name of ["titleField", "linkField", "descriptionField", "cancelButton", "saveButton"]) {
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

        function test_returnSavesWhateverHasTheFocus(data: var): void {
            const settings = test.open();
            keyClick("x");
            focusOn(settings, data.name);
            keyClick(data.key, data.key === Qt.Key_Enter ? Qt.KeypadModifier : Qt.NoModifier);
            compare(dismissals.count, 1);
            compare(changes.count, 3);
            compare(root.store.blogTitle, field(settings, "titleField").text);
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
            test.open();
            keyClick(Qt.Key_Return, data.modifier);
            keyClick(Qt.Key_Enter, data.modifier | Qt.KeypadModifier);
            compare(dismissals.count, 0);
            compare(changes.count, 0);
        }

        function test_saveTakesWhatIsComposed(): void {
            const settings = test.open();
            keySequence("Ctrl+A");
            Probe.compose("かな");
            settings.save();
            compare(root.store.blogTitle, "かな");
        }

        function test_returnEndsACompositionBeforeItSaves(): void {
            const settings = test.open();
            keySequence("Ctrl+A");
            Probe.compose("かな");
            keyClick(Qt.Key_Return);
            compare(field(settings, "titleField").text, "かな");
            compare(dismissals.count, 0);
            keyClick(Qt.Key_Return);
            compare(dismissals.count, 1);
            compare(root.store.blogTitle, "かな");
        }

        function test_escapeEndsACompositionBeforeItCancels(): void {
            const settings = test.open();
            const title = field(settings, "titleField").text;
            keyClick(Qt.Key_End);
            Probe.compose("かな");
            keyClick(Qt.Key_Escape);
            compare(field(settings, "titleField").text, title);
            compare(dismissals.count, 0);
            keyClick(Qt.Key_Escape);
            compare(dismissals.count, 1);
        }

        function test_cancelLeavesStoreAndFile_data(): var {
            const rows = [{
                    "tag": "the button",
                    "cancel": settings => mouseClick(field(settings, "cancelButton"))
                }, {
                    "tag": "Space on the button",
                    "cancel": settings => {
                        focusOn(settings, "cancelButton");
                        keyClick(Qt.Key_Space);
                    }
                }];
            for (const name of ["titleField", "linkField", "descriptionField", "cancelButton", "saveButton"]) {
                rows.push({
                        "tag": "Escape in " + name,
                        "cancel": settings => {
                            focusOn(settings, name);
                            keyClick(Qt.Key_Escape);
                        }
                    });
            }
            return rows;
        }

        function test_cancelLeavesStoreAndFile(data: var): void {
            mouseClick(field(test.open(), "saveButton"));
            const file = Probe.stateOf(test.file);
            const before = stored(root.store);
            const settings = test.open();
            replaceAll(settings, "abandoned");
            data.cancel(settings);
            compare(dismissals.count, 1);
            compare(changes.count, 0);
            compare(stored(root.store), before);
            compare(Probe.stateOf(test.file), file);
            compare(texts(test.open()), before);
        }

        function test_spacePressesSave(): void {
            const settings = test.open();
            focusOn(settings, "saveButton");
            keyClick(Qt.Key_Space);
            compare(changes.count, 3);
            compare(dismissals.count, 1);
        }

        function test_saveTwiceSavesOnce(): void {
            const settings = test.open();
            const button = field(settings, "saveButton");
            mouseDoubleClickSequence(button);
            Probe.hold(root.Window.window, Qt.Key_Return, Qt.NoModifier, 5);
            settings.save();
            settings.cancel();
            compare(changes.count, 3);
            compare(dismissals.count, 1);
        }

        function test_theStoreHearsNothingBeforeSave(): void {
            const settings = test.open();
            replaceAll(settings, "words");
            compare(changes.count, 0);
            compare(Probe.stateOf(test.file), "absent");
        }

        function test_tabGoesThroughTheFieldsInOrder(): void {
            const settings = test.open();
            for (const name of ["titleField", "linkField", "descriptionField", "cancelButton", "saveButton", "titleField"]) {
                verify(field(settings, name).activeFocus, name);
                keyClick(Qt.Key_Tab);
            }
            keyClick(Qt.Key_Backtab, Qt.ShiftModifier);
            keyClick(Qt.Key_Backtab, Qt.ShiftModifier);
            verify(field(settings, "saveButton").activeFocus);
        }

        function test_fieldsAreOneBelowTheOtherAndButtonsAtTheEnds(): void {
            const settings = test.open();
            waitForRendering(settings);
            const tops = fields.map(name => field(settings, name).mapToItem(settings, 0, 0).y);
            verify(tops[0] < tops[1] && tops[1] < tops[2]);
            const cancel = field(settings, "cancelButton");
            const save = field(settings, "saveButton");
            compare(cancel.mapToItem(settings, 0, 0).x, Theme.padding);
            compare(save.mapToItem(settings, save.width, 0).x, settings.width - Theme.padding);
        }

        function test_fieldsKeepTheirDistanceWhereThereIsRoom(): void {
            const settings = test.open();
            waitForRendering(settings);
            const places = fields.map(name => {
                    const item = field(settings, name);
                    return item.mapToItem(settings, 0, 0, item.width, item.height);
                });
            compare(places[1].top - places[0].bottom, Theme.padding);
            compare(places[2].top - places[1].bottom, Theme.padding);
        }

        function test_assistiveToolsAreToldOfEachControl_data(): var {
            return [{
                    "tag": "titleField",
                    "role": "EditableText",
                    "name": "Blog Title"
                }, {
                    "tag": "linkField",
                    "role": "EditableText",
                    "name": "Blog Link"
                }, {
                    "tag": "descriptionField",
                    "role": "EditableText",
                    "name": "Blog Description"
                }, {
                    "tag": "cancelButton",
                    "role": "Button",
                    "name": "Cancel"
                }, {
                    "tag": "saveButton",
                    "role": "Button",
                    "name": "Save"
                }];
        }

        function test_assistiveToolsAreToldOfEachControl(data: var): void {
            const told = Probe.accessible(field(test.open(), data.tag));
            compare(told.role, data.role);
            compare(told.name, data.name);
            verify(!told.states.includes("disabled"));
        }

        function test_theHeadingIsBoldAndOfTheSecondTitleSize(): void {
            const heading = findText(test.open(), "RSS Feed Settings");
            verify(heading);
            compare(Probe.accessible(heading).role, "Heading");
            compare(heading.font.pixelSize, Math.round(Theme.title2Size));
            verify(heading.font.bold);
        }

        function findText(item: Item, text: string): Item {
            for (let i = 0; i < item.children.length; ++i) {
                const child = item.children[i];
                const found = child.text === text ? child : test.findText(child, text);
                if (found)
                    return found;
            }
            return null;
        }

        function test_longTextsAreStoredWhole(): void {
            const lengthy = "0123456789".repeat(10001);
            const settings = test.open();
            Probe.setClipboard(lengthy);
            for (const name of test.fields) {
                focusOn(settings, name);
                keySequence("Ctrl+A");
                keySequence("Ctrl+V");
            }
            keyClick(Qt.Key_Return);
            verify(stored(root.store).every(text => text === lengthy));
        }

        function test_pastedLineBreaksAreKept(): void {
            test.open();
            Probe.setClipboard("one\ntwo\r\nthree");
            keySequence("Ctrl+A");
            keySequence("Ctrl+V");
            keyClick(Qt.Key_Return);
            compare(root.store.blogTitle, "one\ntwo\r\nthree");
        }

        function test_untouchedTextsKeepEveryCharacter(): void {
            const awkward = "\ufeffa\u00a0b\rc\r\nd\u2028e\u2029f e\u0301";
            root.store.blogTitle = awkward;
            root.store.blogLink = awkward;
            root.store.blogDescription = awkward;
            test.open();
            keyClick(Qt.Key_Return);
            compare(stored(root.store), [awkward, awkward, awkward]);
            compare(stored(Probe.newStore()), [awkward, awkward, awkward]);
        }

        function test_savingWhereTheFileCannotBeWrittenCloses(): void {
            Probe.makeFolder(test.file);
            test.open();
            type("x");
            keyClick(Qt.Key_Return);
            compare(dismissals.count, 1);
            verify(root.store.blogTitle.includes("x"));
        }

        function test_aFormThatLeavesTakesNoInput(): void {
            const settings = test.open();
            settings.isPresented = false;
            keyClick(Qt.Key_Return);
            keyClick(Qt.Key_Escape);
            mouseClick(field(settings, "cancelButton"));
            mouseClick(field(settings, "saveButton"));
            compare(dismissals.count, 0);
            compare(changes.count, 0);
        }

        name: "BlogSettingsView"
        when: windowShown
    }
}
