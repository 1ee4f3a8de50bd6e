import QtQuick
import Tavlo

// What is written on a button: a symbol, or none, and the text. A text that does not fit is cut.
Item {
    id: root

    property string symbol: ""
    property string text: ""
    property font font
    property color ink: Theme.text

    readonly property real symbolWidth: mark.visible ? mark.width + row.spacing : 0

    implicitWidth: root.symbolWidth + title.implicitWidth
    // Buttons with and without a symbol are of one height, whatever the font's is.
    implicitHeight: Math.max(row.implicitHeight, mark.height)

    Row {
        id: row

        anchors.centerIn: parent
        spacing: 7

        Symbol {
            id: mark

            visible: root.symbol !== ""
            name: root.symbol
            color: root.ink
            anchors.verticalCenter: parent.verticalCenter
        }

        Text {
            id: title

            objectName: "title"
            width: Math.min(implicitWidth, root.width - root.symbolWidth)
            text: root.text
            font: root.font
            color: root.ink
            textFormat: Text.PlainText
            elide: Text.ElideRight
            anchors.verticalCenter: parent.verticalCenter
            Accessible.ignored: true
        }
    }
}
