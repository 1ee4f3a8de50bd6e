import QtQuick
import QtQuick.Layouts
import Tavlo

// The prompt that asks for the path of the exported feed. The path belongs to the owner, who hears
// of each change.
SheetForm {
    id: root

    property string exportPath: ""
    // A line that says what went wrong; undefined for none.
    property var exportError: undefined

    signal exportPathEdited(string path)
    signal exportRequested

    function requestExport(): void {
        Composition.commit();
        if (root.isPresented)
            root.exportRequested();
    }

    title: qsTr("Export RSS Feed")
    onReturnPressed: root.requestExport()

    Component.onCompleted: pathField.selectAll()

    OneLineField {
        id: pathField

        objectName: "pathField"
        text: root.exportPath
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
        text: root.exportError === undefined ? "" : "❌ " + root.exportError
        color: Theme.error
        font.pixelSize: Theme.bodySize
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
        Layout.fillWidth: true
    }

    SheetButtons {
        action: qsTr("Export")
        actionName: "exportButton"
        apart: false
        onCancelled: root.cancel()
        onAccepted: root.requestExport()
        Layout.alignment: Qt.AlignHCenter
    }
}
