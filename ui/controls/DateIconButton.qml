import QtQuick
import Tavlo

// A square button of the date field that shows a symbol alone. It is as high as a field.
ButtonBase {
    id: root

    required property string name

    implicitWidth: root.implicitHeight
    implicitHeight: Math.ceil(metrics.height) + 2 * Theme.controlPadding
    passReturn: true
    // A scrolling form, which cuts off what lies outside its rows, is not to cut the ring.
    ringGap: -Theme.focusWidth
    Accessible.name: root.name

    FontMetrics {
        id: metrics

        font.pixelSize: Theme.bodySize
    }

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: root.symbol
            color: root.ink
        }
    }
}
