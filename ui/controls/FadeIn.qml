import QtQuick

// How a popup comes on screen.
Transition {
    id: root

    required property int duration

    NumberAnimation {
        property: "opacity"
        from: 0
        to: 1
        duration: root.duration
    }
}
