import QtQuick
import QtQuick.Templates as T
import Tavlo

// What the program's buttons have in common. A prominent one is filled with the accent.
T.AbstractButton {
    id: root

    // The name of the symbol before the text, or none.
    property string symbol: ""
    property bool prominent: false
    // Whether the button is drawn only under the pointer, or with the focus.
    property bool flat: false
    // Whether a disabled button turns grey. One that only waits behind a sheet keeps its look.
    property bool dimWhenDisabled: true
    // Whether Return and Enter are left to what is around the button.
    property alias passReturn: keyFilter.passReturn
    // From the button's edge out to the ring around it.
    property int ringGap: 2

    readonly property bool dimmed: !root.enabled && root.dimWhenDisabled
    readonly property color fill: {
        if (root.dimmed)
            return Theme.buttonDisabled;
        if (root.down)
            return root.prominent ? Theme.accentPressed : Theme.buttonPressed;
        if (root.hovered)
            return root.prominent ? Theme.accentHovered : Theme.buttonHovered;
        if (root.flat)
            return Qt.alpha(Theme.buttonHovered, 0);
        return root.prominent ? Theme.accent : Theme.button;
    }
    readonly property color ink: {
        if (root.dimmed)
            return Theme.disabledText;
        return root.prominent ? Theme.accentText : Theme.text;
    }

    implicitWidth: Math.max(implicitContentWidth + leftPadding + rightPadding, implicitBackgroundWidth)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    verticalPadding: Theme.controlPadding
    horizontalPadding: 2 * Theme.controlPadding
    hoverEnabled: true
    font.pixelSize: Theme.bodySize
    font.weight: Font.Medium
    Accessible.role: Accessible.Button
    Accessible.name: root.text
    Accessible.onPressAction: {
        if (root.enabled && root.visible)
            root.clicked();
    }

    ButtonKeyFilter {
        id: keyFilter

        button: root
    }

    contentItem: ButtonLabel {
        symbol: root.symbol
        text: root.text
        font: root.font
        ink: root.ink
    }

    background: Rectangle {
        radius: Theme.controlRadius
        color: root.fill
        border.width: root.flat || (root.prominent && !root.dimmed) ? 0 : 1
        border.color: root.dimmed ? Theme.borderDisabled : Theme.border

        Behavior on color  {
            ColorAnimation {
                duration: Theme.hoverDuration
            }
        }

        FocusRing {
            objectName: "focusRing"
            visible: root.visualFocus
            innerRadius: Theme.controlRadius
            gap: root.ringGap
        }
    }
}
