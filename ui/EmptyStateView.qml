import QtQuick
import Tavlo

// What the window says while there are no posts. It grows and fades in, and shrinks and fades out.
Item {
    id: root

    // Whether it is wanted on screen.
    property bool shown: true

    implicitHeight: message.height
    visible: message.opacity > 0

    Column {
        id: message

        anchors.centerIn: parent
        spacing: Theme.spacing

        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            textFormat: Text.PlainText
            text: qsTr("No blog posts yet.")
            font.pixelSize: Theme.title3Size
            color: Theme.secondaryText
        }
    }
}
