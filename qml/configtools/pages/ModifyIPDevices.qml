// What is done with devices of the main page besides changing them: reading their details, opening their web
// page, deleting them from the list.
import QtQuick
import configtools

Item {
    id: root

    required property BusyState busyState
    required property var deviceFactory
    required property var deviceTable  // a DeviceTableModel
    required property var fileDialogs
    signal copyRequested(string text)
    signal said(string message, int kind)

    function showDetail(row) {
        const values = deviceTable.get(row);
        const dialog = detail.wanted();
        dialog.load(Object.assign({}, values, deviceTable.ipv6 ? {} : deviceFactory.getDeviceDetail("dh", values.identity)));
        dialog.open();
    }

    /// A file of the same name that the folder holds already is not replaced unasked.
    function exportDetail(folder, fileName) {
        const path = folder + "/" + fileName;
        if (!fileDialogs.exists(path)) {
            writeDetail(path);
            return;
        }
        const asked = overwriting.wanted();
        asked.path = path;
        asked.show(qsTr("%1 已存在，是否覆盖？").arg(path), OVMessageBox.DangerQuestion);
    }

    function writeDetail(path) {
        if (detail.wanted().write(path))
            said(qsTr("已导出到 %1").arg(path), OVToast.Success);
        else
            said(qsTr("无法写入文件 %1").arg(path), OVToast.Error);
    }

    /// The web page of a device behind a tunnel is reached through a tunnel of its own.
    function openWebPage(row) {
        const values = deviceTable.get(row);
        const detail = deviceTable.ipv6 ? values : deviceFactory.getDeviceDetail("dh", values.identity);
        const port = Number(values.ipport.slice(values.ipport.lastIndexOf(":") + 1));
        const webPort = detail.loginType === "P2P" ? deviceFactory.getP2PWebPort(port) : detail.httpport;
        const page = AddressTools.webPage(values.ipport, webPort ?? 0, detail.https ?? false);
        if (page === "")
            said(qsTr("这台设备没有可打开的网页"), OVToast.Error);
        else if (!Qt.openUrlExternally(page))
            said(qsTr("无法打开浏览器，设备网页：%1").arg(page), OVToast.Error);
    }

    function removeChecked() {
        const refusal = busyState.refusal(BusyState.Delete);
        if (deviceTable.checkedCount === 0)
            said(qsTr("请选择一台设备"), OVToast.Error);
        else if (refusal !== "")
            said(refusal, OVToast.Error);
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
        id: detail
        visible: false
        sourceComponent: DeviceDetailDialog {
            deviceFactory: root.deviceFactory
            onCopyRequested: text => root.copyRequested(text)
            onExportRequested: fileName => root.fileDialogs.chooseFolder(
                qsTr("请选择文件夹"), folder => root.exportDetail(folder, fileName))
        }
    }
    OVOnDemand {
        id: overwriting
        visible: false
        sourceComponent: OVMessageBox {
            property string path
            objectName: "overwriteDetailQuestion"
            okText: qsTr("覆盖")
            title: qsTr("覆盖文件")
            onAccepted: root.writeDetail(path)
        }
    }
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
