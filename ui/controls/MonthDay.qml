import QtQuick
import Tavlo

// One day in the grid of a month.
Item {
    id: root

    required property int index
    required property string dayText
    required property string fullDate
    required property bool inMonth
    required property bool today
    required property bool selected
    required property bool current

    signal chosen(int row)

    implicitWidth: Math.ceil(Theme.bodySize * 2.4)
    implicitHeight: root.implicitWidth
    objectName: "monthDay" + root.index
    activeFocusOnTab: root.current || root.activeFocus
    enabled: root.dayText !== ""

    Accessible.role: Accessible.Button
    Accessible.name: root.fullDate
    Accessible.description: root.today ? qsTr("Today") : ""
    Accessible.focusable: true
    Accessible.focused: root.activeFocus
    Accessible.selectable: true
    Accessible.selected: root.selected
    Accessible.onPressAction: {
        if (root.enabled && root.visible)
            root.chosen(root.index);
    }

    HoverHandler {
        id: hover
    }

    TapHandler {
        onTapped: root.chosen(root.index)
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: root.activeFocus ? 4 : 1
        radius: height / 2
        color: {
            if (root.selected)
                return Theme.accent;
            return hover.hovered ? Theme.buttonHovered : "transparent";
        }
        border.width: root.today && !root.selected ? 1 : 0
        border.color: Theme.border
    }

    FocusRing {
        visible: root.activeFocus
        innerRadius: root.height / 2
        gap: -Theme.focusWidth
    }

    Text {
        anchors.centerIn: parent
        text: root.dayText
        textFormat: Text.PlainText
        font.pixelSize: Theme.bodySize
        font.bold: root.today
        color: root.selected ? Theme.accentText : root.inMonth ? Theme.text : Theme.secondaryText
        Accessible.ignored: true
    }
}
