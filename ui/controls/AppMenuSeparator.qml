import QtQuick
import QtQuick.Templates as T
import Tavlo

// A line between the commands of an AppMenu.
T.MenuSeparator {
    id: root

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    verticalPadding: 5
    horizontalPadding: Theme.controlPadding + 4

    contentItem: Rectangle {
        implicitHeight: 1
        color: Theme.separator
    }
}
