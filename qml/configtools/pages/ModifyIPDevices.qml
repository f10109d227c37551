// Deleting the ticked devices of the main page from the list.
import QtQuick
import configtools

Item {
    id: root

    required property BusyState busyState
    required property var deviceTable  // a DeviceTableModel
    signal said(string message, int kind)

    function removeChecked() {
        const refusal = busyState.refusal(BusyState.Delete);
        if (deviceTable.checkedCount === 0)
            said(qsTr("请选择一台设备"), OVToast.Refusal);
        else if (refusal !== "")
            said(refusal, OVToast.Refusal);
        else
            question.wanted().show(qsTr("请确认是否要删除", "", deviceTable.checkedCount), OVMessageBox.DangerQuestion);
    }

    function removeNow() {
        const kept = deviceTable.deleteChecked();
        if (kept > 0)
            said(qsTr("%n 台设备正在升级，没有删除", "", kept), OVToast.Error);
    }

    visible: false

    // qmllint disable unqualified
    OVOnDemand {
        id: question
        visible: false
        sourceComponent: OVMessageBox {
            objectName: "deleteQuestion"
            okText: qsTr("删除")
            title: qsTr("删除设备")
            onAccepted: root.removeNow()
        }
    }
    // qmllint enable unqualified
}
