import QtQuick
import QtTest
import Tavlo
import TavloTest

Item {
    id: root

    property BlogViewModel store: null

    width: 700
    height: 600

    // An owner that does what the form asks for.
    Component {
        id: editorComponent

        BlogPostEditorView {
            id: editor

            width: 700
            height: 600
            onDismissed: editor.isPresented = false
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

        // Characters that text documents, and not posts, make others of.
        readonly property string awkward: "a\u00a0b\rc\r\nd\u2028e\u2029f\u0000g\ufdd0h"

        function open(post: var): BlogPostEditorView {
            const editor = createTemporaryObject(editorComponent, root, {
                    "viewModel": root.store,
                    "editingPost": post
                }) as BlogPostEditorView;
            editor.forceActiveFocus();
            dismissals.target = editor;
            dismissals.clear();
            changes.clear();
            return editor;
        }

        function edit(row: int): BlogPostEditorView {
            return test.open(Probe.postAt(root.store, row));
        }

        function type(text: string): void {
            for (const character of text)
                test.keyClick(character);
        }

        function field(editor: Item, name: string): Item {
            const found = test.findChild(editor, name);
            test.verify(found, name);
            return found;
        }

        function saveButton(editor: Item): Item {
            return test.field(editor, "saveButton");
        }

        function focusOn(editor: Item, name: string): Item {
            const found = test.field(editor, name);
            found.forceActiveFocus(Qt.TabFocusReason);
            test.verify(found.activeFocus, name + " takes the focus");
            return found;
        }

        function init(): void {
            Probe.forgetAll();
            root.store = Probe.newStore();
            changes.target = root.store;
        }

        function test_aNewPostNeedsNothingButOneCharacterOfTitle(): void {
            const editor = test.open(undefined);
            verify(!saveButton(editor).enabled);
            keyClick(" ");
            verify(saveButton(editor).enabled);
            keyClick(Qt.Key_Backspace);
            verify(!saveButton(editor).enabled);
            keyClick("x");
            verify(saveButton(editor).enabled);
            mouseClick(saveButton(editor));
            const posts = Probe.posts(root.store);
            compare(posts.length, 1);
            compare(posts[0].title, "x");
            compare(posts[0].content, " ");
            compare(posts[0].description, "");
            compare(posts[0].permalink, "");
            compare(dismissals.count, 1);
        }

        function test_aNewPostIsPutFirstWithAnIdOfItsOwn(): void {
            Probe.setPosts(root.store, [{
                        "title": "Older"
                    }]);
            test.open(undefined);
            type("Newer");
            keySequence("Ctrl+Return");
            const posts = Probe.posts(root.store);
            compare(posts.map(post => post.title), ["Newer", "Older"]);
            verify(posts[0].id !== posts[1].id);
            verify(/^[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab]/.test(posts[0].id), posts[0].id);
        }

        function test_anUntouchedDateIsTheMomentOfOpening(): void {
            const before = Probe.now();
            test.open(undefined);
            const after = Probe.now();
            wait(50);
            type("x");
            keySequence("Ctrl+Return");
            const date = Probe.secondsOf(Probe.postAt(root.store, 0));
            verify(date >= before && date <= after);
        }

        function test_savingAnEditKeepsIdContentPlaceAndDate(): void {
            Probe.setPosts(root.store, [{
                        "title": "First",
                        "content": "1"
                    }, {
                        "title": "Second",
                        "content": "body\r\n2 ",
                        "seconds": 700000000.1234567,
                        "description": "About",
                        "permalink": "https://example.com/2"
                    }, {
                        "title": "Third",
                        "content": "3"
                    }]);
            const before = Probe.posts(root.store);
            const editor = test.edit(1);
            compare(field(editor, "titleField").text, "Second");
            compare(field(editor, "descriptionField").exactText, "About");
            compare(field(editor, "permalinkField").text, "https://example.com/2");
            keyClick(Qt.Key_End);
            type("!");
            keySequence("Ctrl+Return");
            before[1].title = "Second!";
            compare(Probe.posts(root.store), before);
            compare(Probe.posts(Probe.newStore()), before);
        }

        function test_textsThatNobodyTouchedKeepEveryCharacter(): void {
            Probe.setPosts(root.store, [{
                        "title": "\ufeffe\u0301" + test.awkward,
                        "content": test.awkward,
                        "description": test.awkward,
                        "permalink": test.awkward,
                        "seconds": 1e300
                    }]);
            const before = Probe.posts(root.store);
            test.edit(0);
            keySequence("Ctrl+Return");
            compare(dismissals.count, 1);
            compare(Probe.posts(root.store), before);
        }

        function test_visitingTheFieldsTouchesNothing(): void {
            Probe.setPosts(root.store, [{
                        "title": "Title",
                        "content": "c",
                        "description": test.awkward,
                        "permalink": test.awkward,
                        "seconds": -0.25
                    }]);
            const before = Probe.posts(root.store);
            const editor = test.edit(0);
            for (let i = 0; i < 12; ++i)
                keyClick(Qt.Key_Tab);
            mouseClick(field(editor, "descriptionField"));
            keyClick(Qt.Key_Left);
            keySequence("Ctrl+Return");
            compare(Probe.posts(root.store), before);
        }

        function test_anEditedDescriptionKeepsNoBreakSpacesAndLineSeparators(): void {
            Probe.setPosts(root.store, [{
                        "title": "Title",
                        "content": "c",
                        "description": "a\u00a0b\rc\r\nd\u2028e\u2029f"
                    }]);
            const editor = test.edit(0);
            focusOn(editor, "descriptionField");
            keySequence("Ctrl+End");
            type("!");
            keySequence("Ctrl+Return");
            compare(Probe.posts(root.store)[0].description, "a\u00a0b\nc\nd\u2028e\nf!");
        }

        function test_withoutContentNothingEnablesSave(): void {
            Probe.setPosts(root.store, [{
                        "title": "Imported",
                        "content": ""
                    }]);
            const before = Probe.posts(root.store);
            const editor = test.edit(0);
            verify(!saveButton(editor).enabled);
            type("A longer title");
            verify(!saveButton(editor).enabled);
            focusOn(editor, "descriptionField");
            type("words");
            focusOn(editor, "permalinkField");
            type("words");
            verify(!saveButton(editor).enabled);
            keySequence("Ctrl+Return");
            mouseClick(saveButton(editor));
            editor.save();
            compare(dismissals.count, 0);
            compare(Probe.posts(root.store), before);
            mouseClick(field(editor, "cancelButton"));
            compare(dismissals.count, 1);
        }

        function test_aTitleOfSpacesCounts(): void {
            Probe.setPosts(root.store, [{
                        "title": "Old",
                        "content": "c"
                    }]);
            const editor = test.edit(0);
            keySequence("Ctrl+A");
            keyClick(Qt.Key_Delete);
            verify(!saveButton(editor).enabled);
            type("  ");
            verify(saveButton(editor).enabled);
            keySequence("Ctrl+Return");
            compare(Probe.posts(root.store)[0].title, "  ");
        }

        function test_theSaveKeyDoesNothingWhileSaveIsDisabled(): void {
            const editor = test.open(undefined);
            focusOn(editor, "descriptionField");
            type("a");
            keySequence("Ctrl+Return");
            keyClick(Qt.Key_Enter, Qt.ControlModifier | Qt.KeypadModifier);
            compare(dismissals.count, 0);
            compare(changes.count, 0);
            compare(field(editor, "descriptionField").exactText, "a");
        }

        function test_theSaveKeyWorksFromEveryField_data(): var {
            return [{
                    "tag": "titleField"
                }, {
                    "tag": "descriptionField"
                }, {
                    "tag": "permalinkField"
                }, {
                    "tag": "cancelButton"
                }, {
                    "tag": "saveButton"
                }];
        }

        function test_theSaveKeyWorksFromEveryField(data: var): void {
            Probe.setPosts(root.store, [{
                        "title": "Old",
                        "content": "c",
                        "description": "d"
                    }]);
            const editor = test.edit(0);
            focusOn(editor, data.tag);
            const before = Probe.posts(root.store);
            keySequence("Ctrl+Return");
            compare(dismissals.count, 1);
            compare(Probe.posts(root.store), before);
        }

        function test_theKeypadsEnterSavesToo(): void {
            test.open(undefined);
            type("x");
            keyClick(Qt.Key_Enter, Qt.ControlModifier | Qt.KeypadModifier);
            compare(Probe.posts(root.store).length, 1);
            compare(dismissals.count, 1);
        }

        function test_heldSaveKeyStoresOnePost(): void {
            test.open(undefined);
            type("x");
            Probe.hold(root.Window.window, Qt.Key_Return, Qt.ControlModifier, 20);
            compare(Probe.posts(root.store).length, 1);
            compare(dismissals.count, 1);
        }

        function test_saveKeyThatWasHeldWhileSaveWasDisabledStaysWithoutEffect(): void {
            test.open(undefined);
            Probe.hold(root.Window.window, Qt.Key_Return, Qt.ControlModifier, 5);
            compare(dismissals.count, 0);
        }

        function test_saveTwiceStoresOnePost(): void {
            const editor = test.open(undefined);
            type("x");
            const button = saveButton(editor);
            mouseDoubleClickSequence(button);
            mouseClick(button);
            editor.save();
            keySequence("Ctrl+Return");
            compare(Probe.posts(root.store).length, 1);
            compare(dismissals.count, 1);
        }

        function test_cancelLeavesStoreAndFile_data(): var {
            return [{
                    "tag": "the button",
                    "cancel": editor => mouseClick(field(editor, "cancelButton"))
                }, {
                    "tag": "Space on the button",
                    "cancel": editor => {
                        focusOn(editor, "cancelButton");
                        keyClick(Qt.Key_Space);
                    }
                }, {
                    "tag": "Escape in the title",
                    "cancel": editor => {
                        focusOn(editor, "titleField");
                        keyClick(Qt.Key_Escape);
                    }
                }, {
                    "tag": "Escape in the description",
                    "cancel": editor => {
                        focusOn(editor, "descriptionField");
                        keyClick(Qt.Key_Escape);
                    }
                }, {
                    "tag": "Escape in the permalink",
                    "cancel": editor => {
                        focusOn(editor, "permalinkField");
                        keyClick(Qt.Key_Escape);
                    }
                }, {
                    "tag": "Escape on a button",
                    "cancel": editor => {
                        focusOn(editor, "saveButton");
                        keyClick(Qt.Key_Escape);
                    }
                }];
        }

        function test_cancelLeavesStoreAndFile(data: var): void {
            Probe.setPosts(root.store, [{
                        "title": "Kept",
                        "content": "c",
                        "description": "d"
                    }]);
            const posts = Probe.posts(root.store);
            const file = Probe.stateOf("posts.json");
            const editor = test.edit(0);
            type("x");
            focusOn(editor, "descriptionField");
            type("y");
            focusOn(editor, "permalinkField");
            type("z");
            data.cancel(editor);
            compare(dismissals.count, 1);
            compare(changes.count, 0);
            compare(Probe.posts(root.store), posts);
            compare(Probe.stateOf("posts.json"), file);
        }

        function test_returnIsNoDefaultAction(): void {
            const editor = test.open(undefined);
            type("x");
            keyClick(Qt.Key_Return);
            keyClick(Qt.Key_Enter);
            focusOn(editor, "permalinkField");
            keyClick(Qt.Key_Return);
            focusOn(editor, "cancelButton");
            keyClick(Qt.Key_Return);
            focusOn(editor, "saveButton");
            keyClick(Qt.Key_Return);
            compare(dismissals.count, 0);
            compare(changes.count, 0);
        }

        function test_returnBreaksALineOfTheDescription(): void {
            const editor = test.open(undefined);
            focusOn(editor, "descriptionField");
            type("a");
            keyClick(Qt.Key_Return);
            keyClick("b");
            keyClick(Qt.Key_Enter);
            keyClick("c");
            compare(field(editor, "descriptionField").exactText, "a\nb\nc");
        }

        function test_spacePressesSave(): void {
            const editor = test.open(undefined);
            type("x");
            focusOn(editor, "saveButton");
            keyClick(Qt.Key_Space);
            compare(Probe.posts(root.store).length, 1);
        }

        function test_tabLeavesTheDescription(): void {
            const editor = test.open(undefined);
            verify(field(editor, "titleField").activeFocus);
            keyClick(Qt.Key_Tab);
            verify(field(editor, "descriptionField").activeFocus);
            keyClick(Qt.Key_Tab);
            verify(field(editor, "permalinkField").activeFocus);
            keyClick(Qt.Key_Backtab, Qt.ShiftModifier);
            keyClick(Qt.Key_Backtab, Qt.ShiftModifier);
            verify(field(editor, "titleField").activeFocus);
            compare(field(editor, "descriptionField").exactText, "");
        }

        function test_tabGoesRoundAllControls(): void {
            const editor = test.open(undefined);
            type("x");
            const seen = {};
            for (let i = 0; i < 40; ++i) {
                keyClick(Qt.Key_Tab);
                const names = ["titleField", "descriptionField", "permalinkField", "dateField", "cancelButton", "saveButton"];
                for (const name of names) {
                    if (field(editor, name).activeFocus)
                        seen[name] = true;
                }
                if (field(editor, "titleField").activeFocus)
                    break;
            }
            compare(Object.keys(seen).sort(), ["cancelButton", "dateField", "descriptionField", "permalinkField", "saveButton", "titleField"]);
        }

        function test_aTitleThatIsBeingComposedEnablesSave(): void {
            const editor = test.open(undefined);
            Probe.compose("か");
            verify(saveButton(editor).enabled);
            Probe.compose("");
            verify(!saveButton(editor).enabled);
            Probe.compose("か");
            Probe.commit("課");
            compare(field(editor, "titleField").text, "課");
            verify(saveButton(editor).enabled);
        }

        function test_anotherTextThatIsBeingComposedEnablesNothing_data(): var {
            return [{
                    "tag": "descriptionField"
                }, {
                    "tag": "permalinkField"
                }];
        }

        function test_anotherTextThatIsBeingComposedEnablesNothing(data: var): void {
            const editor = test.open(undefined);
            focusOn(editor, data.tag);
            Probe.compose("か");
            verify(!saveButton(editor).enabled);
        }

        function test_withoutContentAComposedTitleEnablesNothing(): void {
            Probe.setPosts(root.store, [{
                        "title": "",
                        "content": ""
                    }]);
            const editor = test.edit(0);
            Probe.compose("か");
            verify(!saveButton(editor).enabled);
            keySequence("Ctrl+Return");
            editor.save();
            compare(dismissals.count, 0);
        }

        function test_saveTakesWhatIsComposed_data(): var {
            const rows = [];
            for (const name of ["titleField", "descriptionField", "permalinkField"]) {
                rows.push({
                        "tag": name + ", by key",
                        "name": name,
                        "save": editor => keySequence("Ctrl+Return")
                    }, {
                        "tag": name + ", by the button",
                        "name": name,
                        "save": editor => mouseClick(saveButton(editor))
                    }, {
                        "tag": name + ", by an assistive tool",
                        "name": name,
                        "save": editor => Probe.pressAccessibly(saveButton(editor))
                    });
            }
            return rows;
        }

        function test_saveTakesWhatIsComposed(data: var): void {
            const editor = test.open(undefined);
            if (data.name !== "titleField")
                type("x");
            focusOn(editor, data.name);
            Probe.compose("かな");
            data.save(editor);
            compare(dismissals.count, 1);
            const post = Probe.posts(root.store)[0];
            compare(post.title, data.name === "titleField" ? "かな" : "x");
            compare(post.description, data.name === "descriptionField" ? "かな" : "");
            compare(post.permalink, data.name === "permalinkField" ? "かな" : "");
        }

        function test_whatIsComposedIsKeptWhenTheFocusGoes_data(): var {
            return [{
                    "tag": "titleField"
                }, {
                    "tag": "descriptionField"
                }, {
                    "tag": "permalinkField"
                }];
        }

        function test_whatIsComposedIsKeptWhenTheFocusGoes(data: var): void {
            const editor = test.open(undefined);
            const left = focusOn(editor, data.tag);
            Probe.compose("かな");
            focusOn(editor, "cancelButton");
            compare(data.tag === "descriptionField" ? left.exactText : left.text, "かな");
        }

        function test_returnAndEscapeAreTheCompositions_data(): var {
            return [{
                    "tag": "titleField"
                }, {
                    "tag": "descriptionField"
                }, {
                    "tag": "permalinkField"
                }];
        }

        function test_returnAndEscapeAreTheCompositions(data: var): void {
            const editor = test.open(undefined);
            const composing = focusOn(editor, data.tag);
            const text = () => data.tag === "descriptionField" ? composing.exactText : composing.text;
            Probe.compose("かな");
            keyClick(Qt.Key_Escape);
            compare(dismissals.count, 0);
            compare(text(), "");
            Probe.compose("かな");
            keyClick(Qt.Key_Return);
            compare(text(), "かな");
            keyClick(Qt.Key_Escape);
            compare(dismissals.count, 1);
        }

        function test_theTitleSaysWhatIsDone(): void {
            Probe.setPosts(root.store, [{
                        "title": "Any",
                        "content": "c"
                    }]);
            compare(heading(test.open(undefined)), "New Post");
            compare(heading(test.edit(0)), "Edit Post");
        }

        function heading(item: Item): string {
            if (item.Accessible.role === Accessible.Heading)
                return item.Accessible.name;
            for (let i = 0; i < item.children.length; ++i) {
                const found = test.heading(item.children[i]);
                if (found !== "")
                    return found;
            }
            return "";
        }

        function test_assistiveToolsAreToldOfEachControl_data(): var {
            return [{
                    "tag": "titleField",
                    "role": "EditableText",
                    "name": "Title"
                }, {
                    "tag": "textArea",
                    "role": "EditableText",
                    "name": "Description"
                }, {
                    "tag": "permalinkField",
                    "role": "EditableText",
                    "name": "Permalink (https://...)"
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
            const editor = test.open(undefined);
            type("x");
            const told = Probe.accessible(field(editor, data.tag));
            compare(told.role, data.role);
            compare(told.name, data.name);
            verify(!told.states.includes("disabled"));
        }

        function test_assistiveToolsAreToldThatSaveIsDisabled(): void {
            const editor = test.open(undefined);
            const button = Probe.accessible(saveButton(editor));
            verify(button.states.includes("disabled"), button.states);
            const title = Probe.accessible(field(editor, "titleField"));
            verify(title.states.includes("focused"), title.states);
        }

        function test_buttonsTakeTheAccessiblePress(): void {
            const editor = test.open(undefined);
            verify(!Probe.pressAccessibly(saveButton(editor)) || dismissals.count === 0);
            type("x");
            verify(Probe.pressAccessibly(saveButton(editor)));
            compare(Probe.posts(root.store).length, 1);
            Probe.pressAccessibly(saveButton(editor));
            Probe.pressAccessibly(field(editor, "cancelButton"));
            compare(Probe.posts(root.store).length, 1);
            compare(dismissals.count, 1);
        }

        function test_longTextsAreStoredWhole(): void {
            const lengthy = "0123456789".repeat(10001);
            const editor = test.open(undefined);
            Probe.setClipboard(lengthy);
            for (const name of ["titleField", "descriptionField", "permalinkField"]) {
                focusOn(editor, name);
                keySequence("Ctrl+V");
            }
            keySequence("Ctrl+Return");
            const post = Probe.posts(root.store)[0];
            verify(post.title === lengthy, "the title, of " + post.title.length);
            verify(post.description === lengthy, "the description, of " + post.description.length);
            verify(post.permalink === lengthy, "the permalink, of " + post.permalink.length);
        }

        function test_oneLineFieldsKeepPastedLineBreaks(): void {
            const editor = test.open(undefined);
            Probe.setClipboard("one\ntwo\r\nthree\u2028four\tfive");
            keySequence("Ctrl+V");
            focusOn(editor, "permalinkField");
            keySequence("Ctrl+V");
            keySequence("Ctrl+Return");
            const post = Probe.posts(root.store)[0];
            compare(post.title, "one\ntwo\r\nthree\u2028four\tfive");
            compare(post.permalink, post.title);
        }

        function test_aPermalinkIsStoredAsTyped(): void {
            const editor = test.open(undefined);
            type("x");
            focusOn(editor, "permalinkField");
            type(" no address <&>\" ");
            keySequence("Ctrl+Return");
            compare(Probe.posts(root.store)[0].permalink, " no address <&>\" ");
        }

        function test_theArticleOptionIsLeftAlone_data(): var {
            return [{
                    "tag": "off",
                    "on": false
                }, {
                    "tag": "on",
                    "on": true
                }];
        }

        function test_theArticleOptionIsLeftAlone(data: var): void {
            root.store.useDescriptionAsArticle = data.on;
            const editor = createTemporaryObject(editorComponent, root, {
                    "viewModel": root.store,
                    "useDescriptionAsArticle": !data.on
                }) as BlogPostEditorView;
            editor.forceActiveFocus();
            type("x");
            keySequence("Ctrl+Return");
            compare(Probe.posts(root.store).length, 1);
            compare(root.store.useDescriptionAsArticle, data.on);
            compare(editor.useDescriptionAsArticle, !data.on);
        }

        function test_theStoreHearsNothingBeforeSave(): void {
            const editor = test.open(undefined);
            type("x");
            focusOn(editor, "descriptionField");
            type("y");
            compare(changes.count, 0);
            compare(Probe.stateOf("posts.json"), "absent");
            keySequence("Ctrl+Return");
            compare(changes.count, 1);
            verify(Probe.exists("posts.json"));
        }

        function test_aFormThatLeavesTakesNoInput(): void {
            const editor = test.open(undefined);
            type("x");
            editor.isPresented = false;
            verify(!saveButton(editor).enabled);
            keySequence("Ctrl+Return");
            keyClick(Qt.Key_Escape);
            mouseClick(field(editor, "cancelButton"));
            compare(dismissals.count, 0);
            compare(changes.count, 0);
        }

        function test_theFormKeepsThePostThatItWasOpenedWith(): void {
            Probe.setPosts(root.store, [{
                        "title": "One",
                        "content": "c"
                    }, {
                        "title": "Two",
                        "content": "c"
                    }]);
            const editor = test.edit(0);
            editor.editingPost = Probe.postAt(root.store, 1);
            compare(field(editor, "titleField").text, "One");
            compare(heading(editor), "Edit Post");
            editor.editingPost = undefined;
            compare(heading(editor), "Edit Post");
            keyClick(Qt.Key_End);
            type("!");
            keySequence("Ctrl+Return");
            compare(Probe.posts(root.store).map(post => post.title), ["One!", "Two"]);
        }

        function test_savingAPostThatHasGoneChangesNothingAndCloses(): void {
            Probe.setPosts(root.store, [{
                        "title": "Gone",
                        "content": "c"
                    }]);
            test.edit(0);
            Probe.setPosts(root.store, [{
                        "title": "Other",
                        "content": "c"
                    }]);
            const before = Probe.posts(root.store);
            type("x");
            keySequence("Ctrl+Return");
            compare(Probe.posts(root.store), before);
            compare(dismissals.count, 1);
        }

        function test_savingWhereTheFileCannotBeWrittenCloses(): void {
            Probe.makeFolder("posts.json");
            test.open(undefined);
            type("x");
            keySequence("Ctrl+Return");
            compare(dismissals.count, 1);
            compare(Probe.posts(root.store).length, 1);
        }

        function editDatedPost(): BlogPostEditorView {
            Probe.setPosts(root.store, [{
                        "title": "Dated",
                        "content": "c",
                        "seconds": 700000000.375
                    }]);
            const editor = test.edit(0);
            focusOn(editor, "dateField");
            return editor;
        }

        function test_aChangedDateIsStoredWithItsFraction(): void {
            editDatedPost();
            keyClick(Qt.Key_Up);
            keySequence("Ctrl+Return");
            const seconds = Probe.secondsOf(Probe.postAt(root.store, 0));
            verify(seconds !== 700000000.375);
            compare(seconds - Math.floor(seconds), 0.375);
        }

        function test_aDateThatIsChangedBackHasItsOldBits(): void {
            editDatedPost();
            keyClick(Qt.Key_Up);
            keyClick(Qt.Key_Down);
            keySequence("Ctrl+Return");
            compare(Probe.posts(root.store)[0].date, Probe.bits(700000000.375));
        }

        function test_anOpenMonthTakesEscapeFirst(): void {
            const editor = editDatedPost();
            mouseClick(field(editor, "monthButton"));
            const month = findChild(field(editor, "dateField"), "monthPopup");
            tryCompare(month, "opened", true);
            keyClick(Qt.Key_Escape);
            tryCompare(month, "visible", false);
            compare(dismissals.count, 0);
            keyClick(Qt.Key_Escape);
            compare(dismissals.count, 1);
        }

        function test_theDescriptionIsAtLeastOneHundredHigh(): void {
            const editor = test.open(undefined);
            editor.height = 250;
            waitForRendering(editor);
            verify(field(editor, "descriptionField").height >= 100);
        }

        name: "BlogPostEditorView"
        when: windowShown
    }
}
