import QtQuick

// Tells of whole steps of the mouse's wheel over an item, upwards as positive ones. What a smooth
// wheel turns less than a step is added up.
WheelHandler {
    id: root

    property int turned: 0

    signal stepped(int by)

    function turn(angle: int): void {
        // In eighths of a degree, as the event has it.
        const step = 120;
        root.turned += angle;
        const by = Math.trunc(root.turned / step);
        root.turned -= by * step;
        if (by !== 0)
            root.stepped(by);
    }

    acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
    onEnabledChanged: root.turned = 0
    onWheel: event => root.turn(event.angleDelta.y)
}
