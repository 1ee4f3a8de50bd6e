import QtQuick
import QtQuick.Layouts
import Tavlo

// The heading of a sheet.
Text {
    color: Theme.text
    font.pixelSize: Theme.title2Size
    font.bold: true
    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    horizontalAlignment: Text.AlignHCenter
    Accessible.role: Accessible.Heading
    Accessible.name: text
    Layout.fillWidth: true
}
