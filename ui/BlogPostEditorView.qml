import QtQuick
import QtQuick.Layouts
import Tavlo

// The form in which a post is written or changed. It edits a draft of its own, made when the form
// is built; the store hears of it only from save().
FocusScope {
    id: root

    required property BlogViewModel viewModel
    // Whether the owner shows the form. False while it leaves, when it takes no input any more.
    property bool isPresented: true
    // The store's option of that name. The form holds it, and neither shows nor changes it.
    property bool useDescriptionAsArticle: false
    // The post to edit; undefined to write a new one.
    property var editingPost: undefined

    readonly property PostDraft draft: PostDraft {
    }
    readonly property bool canSave: root.isPresented && root.draft.complete

    // The owner is to set its isPresented to false.
    signal dismissed

    function save(): void {
        Composition.commit();
        root.takeTexts();
        if (!root.canSave)
            return;
        root.draft.saveTo(root.viewModel);
        root.dismissed();
    }

    function cancel(): void {
        if (root.isPresented)
            root.dismissed();
    }

    function takeTexts(): void {
        root.draft.description = descriptionField.exactText;
        root.draft.date = dateField.postDate.date;
    }

    focus: true
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

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.padding
        spacing: Theme.padding

        SheetTitle {
            text: root.draft.editing ? qsTr("Edit Post") : qsTr("New Post")
        }

        FormArea {
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
                Layout.columnSpan: 2
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

        RowLayout {
            spacing: Theme.spacing

            PushButton {
                objectName: "cancelButton"
                text: qsTr("Cancel")
                onClicked: root.cancel()
            }

            Item {
                Layout.fillWidth: true
            }

            PushButton {
                objectName: "saveButton"
                text: qsTr("Save")
                prominent: true
                enabled: root.canSave
                onClicked: root.save()
            }
        }
    }
}
