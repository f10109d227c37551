// An icon that turns while `running` and visible. The owner hides it when no work runs.
import QtQuick
import configtools

OVIcon {
    id: root

    property bool running: true

    name: "spinner"
    color: Theme.colours.accent

    RotationAnimator on rotation {
        duration: Theme.turn
        from: 0
        to: 360
        loops: Animation.Infinite
        running: root.running && root.visible
    }
}
