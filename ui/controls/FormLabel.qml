import QtQuick
import QtQuick.Layouts
import Tavlo

// The name of the field beside it. Assistive tools read it from the field itself.
Text {
    color: Theme.text
    font.pixelSize: Theme.bodySize
    textFormat: Text.PlainText
    horizontalAlignment: Text.AlignRight
    Accessible.ignored: true
    Layout.alignment: Qt.AlignRight | Qt.AlignVCenter
}
