import QtQuick
import QtQuick.Layouts
import Tavlo

// The name of the field beside it, or below it in a grid of one column. Assistive tools read it from
// the field itself.
Text {
    id: root

    readonly property bool above: (root.parent as GridLayout)?.columns === 1

    color: Theme.text
    font.pixelSize: Theme.bodySize
    textFormat: Text.PlainText
    horizontalAlignment: root.above ? Text.AlignLeft : Text.AlignRight
    Accessible.ignored: true
    Layout.alignment: (root.above ? Qt.AlignLeft : Qt.AlignRight) | Qt.AlignVCenter
    // Nearer to its field than to the one above.
    Layout.bottomMargin: root.above ? -Theme.spacing / 2 : 0
}
