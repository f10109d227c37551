// Chooses the operation (title of a batch, such as a reboot) whose failed devices `devices` shows, or all operations.
// Sets `failedOperation` of the model; "" there means all.
import QtQuick
import configtools

OVChoice {
    id: root

    required property var devices  // a DeviceTableModel or an OVTreeModel
    readonly property var operations: devices.failedMarks?.operations ?? []  // titles of the operations with marks

    accessibleName: qsTr("未成功的操作")
    chosen: operations.indexOf(devices.failedOperation) + 1
    model: [qsTr("全部操作"), ...operations]
    objectName: "failedOperationBox"
    onIndexRequested: index => devices.failedOperation = index === 0 ? "" : operations[index - 1]
}
