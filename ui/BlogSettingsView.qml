import QtQuick
import QtQuick.Layouts
import Tavlo

// The form in which the feed's channel settings are changed. It edits a draft of its own, made when
// the form is built; the store hears of it only from save().
FocusScope {
    id: root

    required property BlogViewModel viewModel
    // Whether the owner shows the form. False while it leaves, when it takes no input any more.
    property bool isPresented: true

    readonly property SettingsDraft draft: SettingsDraft {
    }

    // The owner is to set its isPresented to false.
    signal dismissed

    function save(): void {
        Composition.commit();
        if (!root.isPresented)
            return;
        root.draft.saveTo(root.viewModel);
        root.dismissed();
    }

    function cancel(): void {
        if (root.isPresented)
            root.dismissed();
    }

    focus: true
    Keys.onEscapePressed: root.cancel()
    Keys.onReturnPressed: root.save()
    Keys.onEnterPressed: root.save()

    Component.onCompleted: {
        root.draft.seed(root.viewModel);
        titleField.text = root.draft.title;
        linkField.text = root.draft.link;
        descriptionField.text = root.draft.description;
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.padding
        spacing: 20

        SheetTitle {
            text: qsTr("RSS Feed Settings")
        }

        FormArea {
            Layout.fillWidth: true
            Layout.fillHeight: true

            FormLabel {
                text: qsTr("Blog Title")
            }

            OneLineField {
                id: titleField

                objectName: "titleField"
                label: qsTr("Blog Title")
                focus: true
                onTextChanged: root.draft.title = titleField.text
                Layout.fillWidth: true
            }

            FormLabel {
                text: qsTr("Blog Link")
            }

            OneLineField {
                id: linkField

                objectName: "linkField"
                label: qsTr("Blog Link")
                onTextChanged: root.draft.link = linkField.text
                Layout.fillWidth: true
            }

            FormLabel {
                text: qsTr("Blog Description")
            }

            OneLineField {
                id: descriptionField

                objectName: "descriptionField"
                label: qsTr("Blog Description")
                onTextChanged: root.draft.description = descriptionField.text
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
                onClicked: root.save()
            }
        }
    }
}
