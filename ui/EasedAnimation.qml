import QtQuick
import Tavlo

// The pace at which the list and what is in it move, fade and grow.
NumberAnimation {
    duration: Theme.duration
    easing.type: Easing.Bezier
    easing.bezierCurve: Theme.easeInOut
}
