import QtQuick
import Tavlo

// What the window shows while there are no posts. The symbol grows and fades in with it, and
// shrinks and fades out.
Item {
    id: root

    // Whether it is wanted on screen.
    required property bool shown
    // How much of it is there: 0 to 1.
    property real presence: root.shown ? 1 : 0

    implicitHeight: message.height
    visible: root.presence > 0

    Behavior on presence  {
        EasedAnimation {
        }
    }

    Column {
        id: message

        anchors.centerIn: parent
        spacing: Theme.spacing
        opacity: root.presence

        Item {
            anchors.horizontalCenter: parent.horizontalCenter
            width: symbol.width
            height: symbol.height + Theme.padding

            Symbol {
                id: symbol

                objectName: "symbol"
                name: "doc.plaintext"
                size: 64
                scale: root.presence
            }
        }

        Text {
            objectName: "message"
            anchors.horizontalCenter: parent.horizontalCenter
            textFormat: Text.PlainText
            text: qsTr("No blog posts yet.")
            font.pixelSize: Theme.title3Size
            color: Theme.secondaryText
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
