// Turns an item clockwise while `running`, in steps: each step draws the whole window, which 60 times per second takes
// a complete processor if there is no graphics card. The item is upright at the start and after the end.
import QtQuick
import configtools

Timer {
    id: root

    required property Item target
    readonly property int steps: 20  // of one rotation

    interval: Theme.turn / steps
    repeat: true

    onRunningChanged: target.rotation = 0
    onTriggered: target.rotation = (target.rotation + 360 / steps) % 360
}
