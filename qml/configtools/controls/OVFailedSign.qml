// Icon of a device whose batches failed or did not reach it. Its tool tip has the batches and reasons.
import QtQuick
import configtools

OVIcon {
    id: root

    required property string failure  // batches and reasons, one per line; empty for an unmarked device

    property bool onlyNotDone: false  // no batch failed; some did not reach the device

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
