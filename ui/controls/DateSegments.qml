import QtQuick
import Tavlo

// The parts of a day, or of a time of day, in one frame. Each part is as wide as its number; the
// frame has room for the widest ones, so that it stays as it is while numbers change.
FieldGround {
    id: root

    // The parts as they stand on screen from left to right.
    required property var parts
    // Whether the first part has the focus where the form gives it to the field as a whole.
    property bool isEntry: false

    readonly property int widestWidth: {
        let width = 0;
        for (let i = 0; i < segments.count; ++i) {
            const segment = segments.itemAt(i) as DateSegment;
            // The parts of a form that goes are gone before it is.
            if (segment)
                width += segment.widestWidth;
        }
        return width;
    }

    implicitWidth: root.widestWidth + 2 * Theme.controlPadding
    implicitHeight: Math.ceil(metrics.height) + 2 * Theme.controlPadding
    ringed: scope.activeFocus

    FontMetrics {
        id: metrics

        font.pixelSize: Theme.bodySize
    }

    FocusScope {
        id: scope

        anchors.fill: parent
        focus: root.isEntry

        Row {
            id: row

            anchors.verticalCenter: parent.verticalCenter
            x: root.LayoutMirroring.enabled ? root.width - row.width - Theme.controlPadding : Theme.controlPadding
            layoutDirection: Qt.LeftToRight
            LayoutMirroring.enabled: false
            LayoutMirroring.childrenInherit: true

            Repeater {
                id: segments

                model: root.parts
                delegate: DateSegment {
                }
            }
        }
    }
}
