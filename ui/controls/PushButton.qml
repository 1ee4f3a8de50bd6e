import QtQuick
import Tavlo

// A button of the usual size. A prominent one is the default action of its sheet. Space presses
// it; Return and Enter are left to the sheet.
ButtonBase {
    id: root

    passReturn: true
    horizontalPadding: 2 * Theme.controlPadding + 2
}
