// A filter that shows only the failed devices of a table: those with a failed mark, optionally of one operation. A
// device is marked when a batch has failed for it or has not reached it, until a later batch of the same work succeeds
// for it. Batches that only take images, and those of the site report, set no marks.
// The link of the filter clears all marks, also those of devices and operations that are not shown, in all pages.
// Hidden while there is no mark.
import QtQuick
import configtools

Row {
    id: root

    required property DeviceTableModel devices  // its filters are changed

    spacing: Theme.unit
    visible: (devices.failedMarks?.count ?? 0) > 0

    OVCheckBox {
        checked: root.devices.onlyFailed
        objectName: "failedFilter"
        //: Shows only the devices whose batches failed or did not reach them; %1 is their number.
        text: qsTr("仅未成功 %1").arg(root.devices.failedCount)
        toolTip: qsTr("只显示失败和未执行的设备，按原因排列。已不在列表中的设备见批处理记录。")
        onToggled: root.devices.onlyFailed = checked
    }
    OVFailedOperation {
        width: Theme.operationWidth
        devices: root.devices
        enabled: root.devices.onlyFailed  // not hidden: the filter must not move when it is clicked
        visible: operations.length > 1
    }
    OVLinkButton {
        anchors.verticalCenter: parent.verticalCenter
        objectName: "clearMarksButton"
        text: qsTr("清除标记")
        toolTip: qsTr("不再标记失败和未执行的设备")
        onClicked: root.devices.failedMarks.clear()
    }
}
