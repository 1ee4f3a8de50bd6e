import QtQuick
import QtQuick.Layouts
import Tavlo

// The prompt that asks for the path of the exported feed. The path belongs to the owner, who hears
// of each change.
FocusScope {
    id: root

    // Whether the owner shows the prompt. False while it leaves, when it takes no input any more.
    property bool isPresented: true
    // The path that the prompt opens with.
    property string exportPath: ""
    // A line that says what went wrong; undefined for none.
    property var exportError: undefined

    signal exportPathEdited(string path)
    signal exportRequested
    signal dismissed

    function requestExport(): void {
        Composition.commit();
        if (root.isPresented)
            root.exportRequested();
    }

    function cancel(): void {
        if (root.isPresented)
            root.dismissed();
    }

    implicitHeight: column.implicitHeight + 2 * Theme.padding
    focus: true
    Keys.onReturnPressed: root.requestExport()
    Keys.onEnterPressed: root.requestExport()

    Component.onCompleted: {
        pathField.text = root.exportPath;
        pathField.selectAll();
    }

    ColumnLayout {
        id: column

        anchors.fill: parent
        anchors.margins: Theme.padding
        spacing: 20

        SheetTitle {
            text: qsTr("Export RSS Feed")
        }

        OneLineField {
            id: pathField

            objectName: "pathField"
            placeholderText: qsTr("Enter full file path (e.g. /Users/you/Desktop/feed.xml)")
            label: qsTr("File path")
            focus: true
            onTextChanged: root.exportPathEdited(pathField.text)
            Layout.fillWidth: true
            Layout.margins: Theme.padding
        }

        Text {
            objectName: "errorLine"
            visible: root.exportError !== undefined
            text: "❌ " + root.exportError
            color: Theme.error
            font.pixelSize: Theme.bodySize
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            Accessible.role: Accessible.AlertMessage
            Accessible.name: text
            Layout.fillWidth: true
        }

        RowLayout {
            spacing: Theme.spacing
            Layout.alignment: Qt.AlignHCenter

            PushButton {
                objectName: "cancelButton"
                text: qsTr("Cancel")
                onClicked: root.cancel()
            }

            PushButton {
                objectName: "exportButton"
                text: qsTr("Export")
                prominent: true
                onClicked: root.requestExport()
            }
        }
    }
}
