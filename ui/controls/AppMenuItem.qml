import QtQuick
import QtQuick.Templates as T
import Tavlo

// One command of an AppMenu.
T.MenuItem {
    id: root

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    verticalPadding: Theme.controlPadding - 1
    horizontalPadding: Theme.controlPadding + 4
    font.pixelSize: Theme.bodySize
    Accessible.role: Accessible.MenuItem
    Accessible.name: root.text
    Accessible.onPressAction: {
        if (root.enabled && root.visible)
            root.clicked();
    }
    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    ButtonKeyFilter {
        button: root
    }

    contentItem: Text {
        text: root.text
        font: root.font
        color: {
            if (!root.enabled)
                return Theme.disabledText;
            return root.highlighted ? Theme.accentText : Theme.text;
        }
        textFormat: Text.PlainText
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }

    background: Rectangle {
        radius: Theme.menuRadius - 4
        color: root.down ? Theme.accentPressed : Theme.accent
        visible: root.enabled && (root.highlighted || root.down)
    }
}
