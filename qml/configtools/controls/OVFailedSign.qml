// Marks a device that batches have failed with, and says which ones and why.
import QtQuick
import configtools

OVIcon {
    id: root

    required property string failure  // empty for a device that is not marked

    color: Theme.colours.bad
    name: "error"
    objectName: "failedSign"
    size: Theme.boxSize
    visible: failure !== ""

    HoverHandler {
        id: pointer
    }
    OVToolTip {
        shown: pointer.hovered
        text: root.failure
    }
}
