import QtQuick
import Tavlo

// The parts of a day, or of a time of day, in one frame.
FieldGround {
    id: root

    // The parts as they stand on screen from left to right.
    required property var parts
    // Whether the form is mirrored.
    required property bool mirrored
    // Whether the first part has the focus where the form gives it to the field as a whole.
    property bool isEntry: false

    implicitWidth: row.implicitWidth + 2 * Theme.controlPadding
    implicitHeight: row.implicitHeight - 4 + 2 * Theme.controlPadding
    ringed: segments.activeFocus

    FocusScope {
        id: segments

        anchors.fill: parent
        focus: root.isEntry

        Row {
            id: row

            anchors.centerIn: parent
            layoutDirection: Qt.LeftToRight
            LayoutMirroring.enabled: false
            LayoutMirroring.childrenInherit: true

            Repeater {
                model: root.parts
                delegate: DateSegment {
                }
                onItemAdded: (index, item) => (item as DateSegment).mirrored = Qt.binding(() => root.mirrored)
            }
        }
    }
}
