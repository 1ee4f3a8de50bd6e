import QtQuick
import QtQuick.Templates as T
import Tavlo

// A line of help beside a control. It comes when the pointer rests on the control, or when keys
// have brought the focus there, and leaves when the control is pressed.
T.ToolTip {
    id: root

    required property T.Control target
    property bool pressed: false

    readonly property bool wanted: root.target.enabled && (root.target.hovered || root.target.visualFocus)
    // A press hides the help until the pointer and the focus have left and come back.
    property bool dismissed: false

    parent: root.target
    x: (root.target.width - root.width) / 2
    y: root.target.height + 6
    implicitWidth: Math.min(implicitContentWidth + leftPadding + rightPadding, 20 * Theme.bodySize)
    implicitHeight: contentHeight + topPadding + bottomPadding
    margins: 6
    verticalPadding: 5
    horizontalPadding: 9
    delay: Theme.helpDelay
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent | T.Popup.CloseOnReleaseOutsideParent
    visible: root.wanted && !root.dismissed && root.text !== ""

    onWantedChanged: {
        if (!root.wanted)
            root.dismissed = false;
    }
    onPressedChanged: {
        if (root.pressed)
            root.dismissed = true;
    }

    contentItem: Text {
        text: root.text
        color: Theme.text
        font.pixelSize: Theme.bodySize
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
    }

    background: FloatingGround {
        radius: 6
    }

    enter: FadeIn {
        duration: Theme.shortDuration
    }

    exit: Transition {
        NumberAnimation {
            property: "opacity"
            to: 0
            duration: Theme.shortDuration
        }
    }
}
