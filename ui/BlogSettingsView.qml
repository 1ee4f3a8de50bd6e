import QtQuick
import QtQuick.Layouts
import Tavlo

// The form in which the feed's channel settings are changed. It edits a draft of its own, made when
// the form is built; the store hears of it only from save().
SheetForm {
    id: root

    required property BlogViewModel viewModel

    readonly property SettingsDraft draft: SettingsDraft {
    }

    function save(): void {
        Composition.commit();
        if (!root.isPresented)
            return;
        root.draft.saveTo(root.viewModel);
        root.dismissed();
    }

    title: qsTr("RSS Feed Settings")
    onReturnPressed: root.save()
    Keys.onEscapePressed: root.cancel()

    Component.onCompleted: {
        root.draft.seed(root.viewModel);
        titleField.text = root.draft.title;
        linkField.text = root.draft.link;
        descriptionField.text = root.draft.description;
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

    SheetButtons {
        action: qsTr("Save")
        actionName: "saveButton"
        onCancelled: root.cancel()
        onAccepted: root.save()
    }
}
