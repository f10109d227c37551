// An icon that turns while `running` and visible. The owner hides it when no work runs.
import QtQuick
import configtools

OVIcon {
    id: root

    property bool running: true

    name: "spinner"
    color: Theme.colours.accent

    OVTurning {
        running: root.running && root.visible
        target: root
    }
}
