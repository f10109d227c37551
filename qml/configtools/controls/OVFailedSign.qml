// Icon of a device with a failed mark (a batch has failed for it or has not reached it), or of one that the last search
// did not find. The tool tip has the reasons. Hidden for any other device.
import QtQuick
import configtools

OVIcon {
    id: root

    required property string failure  // batches and reasons, one for each line; "" hides the icon

    property bool onlyNotDone: false  // no batch has failed for the device: another icon

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
