import QtQuick
import Tavlo

// One post as a card. It has no buttons; a secondary click asks for the menu of its two commands.
Item {
    id: root

    required property blogPost post
    required property BlogViewModel viewModel
    required property string dateText
    // Whether the card shows that it has the keyboard's focus.
    property bool focusShown: false
    // Whether a change of the post is shown as a movement.
    property bool animated: false

    readonly property int radius: 12
    readonly property int spacing: 6
    readonly property int ringWidth: 2

    signal menuRequested(x: real, y: real)

    implicitHeight: title.height + description.height + bottomLine.height + 2 * root.spacing + 2 * Theme.padding

    Accessible.role: Accessible.ListItem
    Accessible.name: root.post.title
    Accessible.description: root.post.description
    Accessible.focusable: true
    Accessible.onPressAction: root.menuRequested(Theme.padding, Theme.padding)

    CardShadow {
        anchors.fill: parent
        radius: root.radius
    }

    Rectangle {
        anchors.fill: parent
        radius: root.radius
        color: Theme.surface
        border.width: Theme.dark ? 1 : 0
        border.color: Theme.separator
        antialiasing: true
    }

    CardText {
        id: title

        objectName: "title"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: Theme.padding
        text: root.post.title
        font.pixelSize: Theme.title2Size
        font.bold: true
        color: Theme.text
        animated: root.animated
    }

    CardText {
        id: description

        objectName: "description"
        anchors.left: title.left
        anchors.right: title.right
        anchors.top: title.bottom
        anchors.topMargin: root.spacing
        text: root.post.description
        font.pixelSize: Theme.bodySize
        color: Theme.text
        animated: root.animated
    }

    Item {
        id: bottomLine

        anchors.left: title.left
        anchors.right: title.right
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
            font.pixelSize: Theme.bodySize
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
            color: Theme.link
            animated: root.animated
        }
    }

    Rectangle {
        objectName: "focusRing"
        anchors.fill: parent
        anchors.margins: -root.ringWidth
        radius: root.radius + root.ringWidth
        visible: root.focusShown
        color: "transparent"
        border.width: root.ringWidth
        border.color: Theme.focusRing
        antialiasing: true
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.RightButton
        onPressed: mouse => root.menuRequested(mouse.x, mouse.y)
    }
}
