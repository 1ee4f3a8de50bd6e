import QtQuick
import QtQuick.Controls.impl
import Tavlo

// One of the program's symbols, by its name, drawn in one colour. All are square.
Item {
    id: root

    property string name: ""
    property int size: Theme.symbolSize
    property color color: Theme.text

    implicitWidth: root.size
    implicitHeight: root.size
    Accessible.ignored: true

    IconImage {
        anchors.fill: parent
        sourceSize.width: root.size
        source: root.name === "" ? "" : "../symbols/" + root.name + ".svg"
        color: root.color
    }
}
