import QtQuick
import Tavlo

// A text of a card, plain and whole. When it changes in sight, the old text fades into the new one
// while the height follows.
Item {
    id: root

    component PlainLabel: Text {
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignLeft
        font.pixelSize: Theme.bodySize
        color: Theme.text
        Accessible.ignored: true
    }

    required property string text
    property alias font: label.font
    property alias color: label.color
    property alias wrapMode: label.wrapMode
    property alias horizontalAlignment: label.horizontalAlignment
    readonly property alias lineCount: label.lineCount
    // Whether a change is shown as a movement; otherwise it is done at once, as the first text is.
    property bool animated: false
    // The text on screen: it follows `text`.
    property string shownText: ""
    // An empty text takes no line, any other at least one of the font's own: letters that are not in
    // it come from fonts whose lines may be lower.
    readonly property real textHeight: root.shownText.length > 0 ? Math.max(Math.ceil(metrics.height), label.y + label.height) : 0
    // How much taller than the text the item is while its height follows.
    property real surplus: 0
    property bool complete: false

    implicitHeight: root.textHeight + root.surplus
    clip: transition.running

    // How far below the top a text begins, so that its first line stands where one in the font would.
    function topOf(text: Text): real {
        return Math.max(0, Math.round(metrics.ascent - text.baselineOffset));
    }

    onTextChanged: {
        transition.complete();
        if (root.animated && root.complete) {
            const height = root.textHeight;
            former.text = root.shownText;
            root.shownText = root.text;
            root.surplus = height - root.textHeight;
            transition.start();
        } else {
            root.shownText = root.text;
        }
    }
    Component.onCompleted: {
        root.shownText = root.text;
        root.complete = true;
    }

    PlainLabel {
        id: label

        anchors.left: parent.left
        anchors.right: parent.right
        y: root.topOf(label)
        text: root.shownText
    }

    PlainLabel {
        id: former

        anchors.left: parent.left
        anchors.right: parent.right
        y: root.topOf(former)
        font: label.font
        color: label.color
        wrapMode: label.wrapMode
        horizontalAlignment: label.horizontalAlignment
        visible: transition.running
    }

    FontMetrics {
        id: metrics

        font: label.font
    }

    ParallelAnimation {
        id: transition

        onStopped: former.text = ""

        EasedAnimation {
            target: label
            property: "opacity"
            from: 0
            to: 1
        }

        EasedAnimation {
            target: former
            property: "opacity"
            from: 1
            to: 0
        }

        EasedAnimation {
            target: root
            property: "surplus"
            to: 0
        }
    }
}
