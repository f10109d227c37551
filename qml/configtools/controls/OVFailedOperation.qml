// Chooses the operation whose failed marks `devices` shows, or all operations. Sets `failedOperation` of the model.
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
