import QtQuick
import Tavlo

// What a field is drawn on: its ground and outline, and the ring while it has the focus. The ring
// lies inside, where a scrolling form does not cut it off.
Rectangle {
    id: root

    property bool ringed: false
    property bool dimmed: false

    radius: Theme.controlRadius
    color: root.dimmed ? Theme.buttonDisabled : Theme.field
    border.width: root.ringed ? Theme.focusWidth : 1
    border.color: {
        if (root.ringed)
            return Theme.focusRing;
        return root.dimmed ? Theme.borderDisabled : Theme.border;
    }
}
