// Marks a device that batches have failed with or did not come to, and says which ones and why.
import QtQuick
import configtools

OVIcon {
    id: root

    required property string failure  // empty for a device that is not marked

    property bool onlyNotDone: false  // no batch has failed with it

    color: onlyNotDone ? Theme.colours.warn : Theme.colours.bad
    name: onlyNotDone ? "alert" : "error"
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
