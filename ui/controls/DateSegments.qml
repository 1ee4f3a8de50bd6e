import QtQuick
import Tavlo

// The parts of a day, or of a time of day, in one frame. The Tab key stops here once; the arrow
// keys go from part to part.
FieldGround {
    id: root

    // The parts as they stand on screen from left to right.
    required property var parts
    // The one to which the Tab key leads.
    required property DatePart firstPart
    property bool impossible: false
    // Whether the first part has the focus when the field is given it as a whole.
    property bool isEntry: false

    // Whether one of the parts has the keyboard, and the one that has it or had it last.
    readonly property bool active: segments.activeFocus
    property DatePart currentPart: root.firstPart

    // The keyboard is to go to a part that may stand elsewhere, to what stands beside this frame,
    // to the first or the last of all parts.
    signal partAsked(DatePart part)
    signal moved(int columns)
    signal movedToEnd(bool last)
    signal monthAsked

    // Gives the keyboard to a part, if it stands in this frame.
    function focusPart(part: DatePart): void {
        for (let i = 0; i < repeater.count; ++i) {
            const segment = repeater.itemAt(i) as DateSegment;
            if (segment.modelData === part)
                segment.forceActiveFocus(Qt.TabFocusReason);
        }
    }

    function focusIndex(index: int): void {
        repeater.itemAt(index).forceActiveFocus(Qt.TabFocusReason);
    }

    function moveFrom(index: int, columns: int): void {
        const next = index + columns;
        if (next >= 0 && next < repeater.count)
            root.focusIndex(next);
        else
            root.moved(columns);
    }

    function focusEdge(left: bool): void {
        root.focusIndex(left ? 0 : repeater.count - 1);
    }

    implicitWidth: segments.implicitWidth + 2 * Theme.controlPadding
    implicitHeight: segments.implicitHeight - 4 + 2 * Theme.controlPadding
    ringed: root.active

    FocusScope {
        id: segments

        focus: root.isEntry
        anchors.centerIn: parent
        implicitWidth: row.implicitWidth
        implicitHeight: row.implicitHeight

        Row {
            id: row

            layoutDirection: Qt.LeftToRight
            LayoutMirroring.enabled: false
            LayoutMirroring.childrenInherit: true

            Repeater {
                id: repeater

                model: root.parts

                delegate: DateSegment {
                    id: segment

                    required property int index

                    focus: segment.modelData === root.firstPart
                    tabStop: segment.modelData === (root.active ? root.currentPart : root.firstPart)
                    impossible: root.impossible
                    onActiveFocusChanged: {
                        if (segment.activeFocus)
                            root.currentPart = segment.modelData;
                    }
                    onPartAsked: part => root.partAsked(part)
                    onMoved: columns => root.moveFrom(segment.index, columns)
                    onMovedToEnd: last => root.movedToEnd(last)
                    onMonthAsked: root.monthAsked()
                }
            }
        }
    }
}
