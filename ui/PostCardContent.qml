import QtQuick
import Tavlo

// What is written on a post's card.
Item {
    id: root

    required property string title
    required property string description
    required property string permalink
    required property string dateText
    // Whether a change of the post is shown as a movement.
    property bool animated: false

    readonly property int spacing: 6

    implicitHeight: titleText.height + descriptionText.height + bottomLine.height + 2 * root.spacing

    CardText {
        id: titleText

        objectName: "title"
        anchors.left: parent.left
        anchors.right: parent.right
        text: root.title
        font.pixelSize: Theme.title2Size
        font.bold: true
        animated: root.animated
    }

    CardText {
        id: descriptionText

        objectName: "description"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: titleText.bottom
        anchors.topMargin: root.spacing
        text: root.description
        animated: root.animated
    }

    Item {
        id: bottomLine

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: descriptionText.bottom
        anchors.topMargin: root.spacing
        height: Math.max(dateLabel.height, permalinkText.height)

        CardText {
            id: dateLabel

            objectName: "date"
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(Math.ceil(dateMetrics.advanceWidth) + 1, parent.width / 2)
            text: root.dateText
            color: Theme.secondaryText
            animated: root.animated
        }

        CardText {
            id: permalinkText

            objectName: "permalink"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width - dateLabel.width - Theme.spacing
            // One line ends at the card's edge; several read as a paragraph.
            horizontalAlignment: permalinkText.lineCount > 1 ? Text.AlignLeft : Text.AlignRight
            text: root.permalink
            font.pixelSize: Theme.captionSize
            wrapMode: Text.WrapAnywhere
            color: Theme.link
            animated: root.animated
        }
    }

    TextMetrics {
        id: dateMetrics

        text: root.dateText
        font: dateLabel.font
    }
}
