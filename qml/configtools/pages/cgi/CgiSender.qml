// Sends one command to one device or to several, as a batch. The batch writes the command ("url") and the start of the
// response, or "Error:" and the reason ("result"), to the rows. At the end, the numbers of successes and failures are
// notified for several devices; for a single command only that the response is empty. Every command is remembered as
// recent, also if it is not sent because another batch runs. A row is an index in `deviceTable`, an identity the unique
// name of a row.
import QtQuick
import configtools

Item {
    id: root

    required property Batches batches  // starts batches for all pages; one batch runs at a time
    required property var cgiBatches  // a CgiBatches: starts batches of CGI commands
    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    required property var deviceTable  // a DeviceTableModel: the rows of the page, with their ticks
    required property CgiCommands commands  // recent and favourite commands
    property Batch batch: null  // the latest batch of this object or its retry; null before
    property string singleRow  // identity of the row for a single command, "" for several devices
    signal notify(string message, int severity)  // show this message; severity: an OVToast.Severity
    /// A batch for several devices has ended, and devices failed, were skipped or were not reached. `lines`: one text
    /// for each of these devices ("address:port" and the reason), grouped by result.
    signal failed(var lines)
    /// The device has refused the account of a single command. `result`: unknown account or wrong password, a
    /// LoginResult.
    signal accountRefused(string identity, string ipport, int result)

    readonly property string prefix: "/cgi-bin/"  // start of every valid command

    /// The last response of a row; only its start if the complete one is no longer in memory.
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

    /// Sends the command of a row to its device. Notifies an invalid command.
    function send(row) {
        const values = deviceTable.get(row);
        const command = (values.url ?? "").trim();
        const fault = faultOf(command);
        if (fault !== "")
            notify(fault, OVToast.Error);
        else
            begin(qsTr("发送CGI命令"), [values.identity], command, values.identity);
    }

    /// Sends a command to the devices with these identities. The caller has checked it with faultOf().
    function sendToAll(identities, command) {
        begin(qsTr("批量配置CGI"), identities, command, "");
    }

    /// Starts the batch. `row`: identity of the row for a single command, "" for several devices. If another batch
    /// runs, the command is remembered and nothing is sent.
    function begin(title, identities, command, row) {
        commands.remember(command);
        const begun = cgiBatches.send(title, identities, command);
        if (begun === null)
            return;
        singleRow = row;
        batch = begun;
        deviceTable.refreshDevices(identities);
    }

    /// Records the login result of the single row in LoginMemory.
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

    /// Notifies the result of the ended batch.
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
