// Sends commands to devices. The rows get the responses; the result is reported.
import QtQuick
import configtools

Item {
    id: root

    required property Batches batches
    required property var cgiBatches
    required property var deviceFactory
    required property var deviceTable  // a DeviceTableModel
    required property CgiCommands commands
    property Batch batch: null
    property string singleRow  // identity of the row for a single command, "" for several devices
    signal notify(string message, int severity)
    /// A batch ended with failed or skipped devices. A line for each, grouped by result.
    signal failed(var lines)
    /// The device refused the account of the command.
    signal accountRefused(string identity, string ipport, int result)

    readonly property string prefix: "/cgi-bin/"

    /// The complete response of a row.
    function responseOf(row) {
        const values = deviceTable.get(row);
        return cgiBatches.responseOf(values.identity, values.result ?? "");
    }

    /// Error text for an invalid command, "" for a valid one.
    function faultOf(command) {
        if (command === "")
            return qsTr("请填写CGI命令的具体内容。");
        return command.startsWith(prefix) ? "" : qsTr("URL格式错误。");
    }

    /// Sends the command of a row.
    function send(row) {
        const values = deviceTable.get(row);
        const command = (values.url ?? "").trim();
        const fault = faultOf(command);
        if (fault !== "")
            notify(fault, OVToast.Error);
        else
            begin(qsTr("发送CGI命令"), [values.identity], command, values.identity);
    }

    /// Sends a command to the devices with these identities.
    function sendToAll(identities, command) {
        begin(qsTr("批量配置CGI"), identities, command, "");
    }

    function begin(title, identities, command, row) {
        commands.remember(command);
        const begun = cgiBatches.send(title, identities, command);
        if (begun === null)
            return;
        singleRow = row;
        batch = begun;
        deviceTable.refreshDevices(identities);
    }

    /// Records the login result of the single row.
    function noteLogin() {
        const {ipport} = deviceFactory.getDeviceDetail("dh", singleRow);
        const noSuchAccount = 1;
        const result = [noSuchAccount, LoginMemory.wrongPassword].find(code => batch.report.devicesWith(code).length > 0);
        if (batch.report.succeeded === 1)
            LoginMemory.note(ipport, 0);
        if (result === undefined)
            return;
        LoginMemory.note(ipport, result);
        accountRefused(singleRow, ipport, result);
    }

    function notifyEnd() {
        const report = batch.report;
        if (singleRow !== "") {
            noteLogin();
            if (report.succeeded === 1 && deviceFactory.getDeviceDetail("dh", singleRow).result === "")
                notify(qsTr("命令已执行，没有可显示的结果。"), OVToast.Information);
            return;
        }
        if (report.notDone > 0)
            notify(qsTr("已停止，完成 %1 / %2").arg(report.total - report.notDone).arg(report.total), OVToast.Information);
        else if (report.failed > 0)
            notify(qsTr("批量配置CGI命令已完成：成功 %1，失败 %2", "", report.total - report.skipped).arg(report.succeeded).arg(report.failed),
                 OVToast.Error);
        else
            notify(qsTr("批量配置CGI命令已完成", "", report.total - report.skipped), OVToast.Success);
        const lines = cgiBatches.failuresOf(batch);
        if (lines.length > 0)
            failed(lines);
    }

    visible: false

    Connections {
        target: root.cgiBatches

        function onResponded(identities) {
            root.deviceTable.refreshDevices(identities);
        }
    }
    Connections {
        target: root.batches

        function onRetried(earlier, again) {
            if (earlier === root.batch)
                root.batch = again;
        }
    }
    Connections {
        target: root.batch

        function onFinished() {
            root.notifyEnd();
        }
    }
}
