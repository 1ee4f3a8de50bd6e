import QtQuick
import Tavlo

// What is written on a post's card.
Item {
    id: root

    required property blogPost post
    required property string dateText
    // Whether a change of the post is shown as a movement.
    property bool animated: false

    readonly property int spacing: 6

    implicitHeight: title.height + description.height + bottomLine.height + 2 * root.spacing

    CardText {
        id: title

        objectName: "title"
        anchors.left: parent.left
        anchors.right: parent.right
        text: root.post.title
        font.pixelSize: Theme.title2Size
        font.bold: true
        animated: root.animated
    }

    CardText {
        id: description

        objectName: "description"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: title.bottom
        anchors.topMargin: root.spacing
        text: root.post.description
        animated: root.animated
    }

    Item {
        id: bottomLine

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: description.bottom
        anchors.topMargin: root.spacing
        height: Math.max(date.height, permalink.height)

        CardText {
            id: date

            objectName: "date"
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, parent.width / 2)
            text: root.dateText
            color: Theme.secondaryText
            animated: root.animated
        }

        CardText {
            id: permalink

            objectName: "permalink"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, parent.width - date.width - Theme.spacing)
            text: root.post.permalink
            font.pixelSize: Theme.captionSize
            wrapMode: Text.WrapAnywhere
            color: Theme.link
            animated: root.animated
        }
    }
}
