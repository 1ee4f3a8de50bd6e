import QtQuick
import Tavlo

// The short name of a weekday above its column. The days beneath say theirs in full.
Text {
    id: root

    required property string modelData

    text: root.modelData
    textFormat: Text.PlainText
    font.pixelSize: Theme.captionSize
    horizontalAlignment: Text.AlignHCenter
    color: Theme.secondaryText
    Accessible.ignored: true
}
