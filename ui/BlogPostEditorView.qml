import QtQuick
import QtQuick.Layouts
import Tavlo

// The form in which a post is written or changed. It edits a draft of its own, made when the form
// is built; the store hears of it only from save().
SheetForm {
    id: root

    required property BlogViewModel viewModel
    // The store's option of that name. The form holds it, and neither shows nor changes it.
    property bool useDescriptionAsArticle: false
    // The post to edit; undefined to write a new one.
    property var editingPost: undefined

    readonly property PostDraft draft: PostDraft {
    }
    // A title that an input method still composes counts: save() has it committed.
    readonly property bool composingTitle: titleField.preeditText !== "" && root.draft.content !== ""
    readonly property bool canSave: root.isPresented && (root.draft.complete || root.composingTitle)

    function save(): void {
        Composition.commit();
        root.takeTexts();
        if (!root.isPresented || !root.draft.complete)
            return;
        root.draft.saveTo(root.viewModel);
        root.dismissed();
    }

    function takeTexts(): void {
        root.draft.description = descriptionField.exactText;
        root.draft.date = dateField.postDate.date;
    }

    title: root.draft.editing ? qsTr("Edit Post") : qsTr("New Post")
    spacing: Theme.padding
    Keys.onEscapePressed: root.cancel()

    Component.onCompleted: {
        root.draft.seed(root.editingPost);
        titleField.text = root.draft.title;
        descriptionField.source = root.draft.description;
        permalinkField.text = root.draft.permalink;
        dateField.postDate.date = root.draft.date;
    }

    Shortcut {
        sequences: ["Ctrl+Return", "Ctrl+Enter"]
        autoRepeat: false
        enabled: root.canSave
        onActivated: root.save()
    }

    FormArea {
        id: form

        Layout.fillWidth: true
        Layout.fillHeight: true

        FormLabel {
            text: qsTr("Title")
        }

        OneLineField {
            id: titleField

            objectName: "titleField"
            label: qsTr("Title")
            focus: true
            onTextChanged: root.draft.title = titleField.text
            Layout.fillWidth: true
        }

        MultiLineField {
            id: descriptionField

            objectName: "descriptionField"
            label: qsTr("Description")
            Layout.columnSpan: form.columns
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.minimumHeight: 100
        }

        FormLabel {
            text: qsTr("Permalink (https://...)")
        }

        OneLineField {
            id: permalinkField

            objectName: "permalinkField"
            label: qsTr("Permalink (https://...)")
            onTextChanged: root.draft.permalink = permalinkField.text
            Layout.fillWidth: true
        }

        FormLabel {
            text: qsTr("Date")
        }

        DateTimeField {
            id: dateField

            objectName: "dateField"
            postDate: PostDate {
            }
            label: qsTr("Date")
            Layout.fillWidth: true
        }
    }

    SheetButtons {
        action: qsTr("Save")
        actionName: "saveButton"
        actionEnabled: root.canSave
        onCancelled: root.cancel()
        onAccepted: root.save()
    }
}
