// Icon of a device with a failed mark: a batch has failed for it or has not reached it. The tool tip has the batches
// and reasons. Hidden for a device without a mark.
import QtQuick
import configtools

OVIcon {
    id: root

    required property string failure  // batches and reasons, one for each line; "" without a mark

    property bool onlyNotDone: false  // no batch failed, but some did not reach the device: another icon

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
