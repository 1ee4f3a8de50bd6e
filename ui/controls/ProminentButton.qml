import QtQuick
import Tavlo

// A large button in the accent's colour, with a symbol before its title and help that shows when
// the pointer rests on it.
ButtonBase {
    id: root

    property string help: ""

    prominent: true
    verticalPadding: Theme.controlPadding + 2
    horizontalPadding: 2 * Theme.controlPadding + 1
    Accessible.description: root.help

    HelpTip {
        objectName: "help"
        target: root
        pressed: root.down
        text: root.help
    }
}
