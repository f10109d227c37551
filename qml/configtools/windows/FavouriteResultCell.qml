// A table cell with the result of adding a favourite to the device list: icon and message. `value` is a
// FavouriteListModel.Progress; a favourite that was not tried shows nothing.
import QtQuick
import configtools

OVTableCell {
    id: root

    readonly property bool running: value === FavouriteListModel.Running
    readonly property bool failed: value === FavouriteListModel.Failed

    OVSpinner {
        anchors.verticalCenter: parent.verticalCenter
        running: root.running
        size: Theme.boxSize
        visible: root.running
    }
    OVIcon {
        anchors.verticalCenter: parent.verticalCenter
        color: root.failed ? Theme.colours.bad : Theme.colours.ok
        name: root.failed ? "error" : "ok"
        size: Theme.boxSize
        visible: root.failed || root.value === FavouriteListModel.Added
    }
    OVLabel {
        x: Theme.boxSize + Theme.signGap
        width: root.width - x - Theme.unit
        height: root.height
        color: root.failed ? Theme.colours.bad : root.running ? Theme.colours.sub : Theme.colours.text
        objectName: "addResult" + root.rowIndex
        text: root.row?.message ?? ""
    }
}
