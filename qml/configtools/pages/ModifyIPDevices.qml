// Deletes the ticked devices of the main page from the list, after a question. The devices themselves are not changed,
// and a search may list them again.
import QtQuick
import configtools

Item {
    id: root

    required property BusyState busyState  // running work of all pages, and the actions that it blocks
    required property var deviceTable  // a DeviceTableModel: the rows of the page, with their ticks
    signal notify(string message, int severity)  // show this message; severity: an OVToast.Severity

    /// Asks for confirmation. Refused without a ticked device, and while running work needs the rows.
    function removeChecked() {
        const refusal = busyState.refusal(BusyState.Delete);
        if (deviceTable.checkedCount === 0)
            notify(qsTr("请选择一台设备"), OVToast.Refusal);
        else if (refusal !== "")
            notify(refusal, OVToast.Refusal);
        else
            question.instance().show(qsTr("请确认是否要删除", "", deviceTable.checkedCount), OVMessageBox.DangerQuestion);
    }

    /// Deletes without a question. Devices being upgraded stay in the list, and their number is notified.
    function removeNow() {
        const kept = deviceTable.deleteChecked();
        if (kept > 0)
            notify(qsTr("%n 台设备正在升级，没有删除", "", kept), OVToast.Error);
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
