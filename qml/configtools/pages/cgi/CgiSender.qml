// Sends commands to devices, one after another, and keeps each answer in the device's row.
import QtQuick
import configtools

Item {
    id: root

    required property var deviceFactory
    required property var localConfig
    required property var cgiManager
    required property var deviceTable  // a DeviceTableModel
    required property CgiCommands commands
    readonly property alias running: batch.running
    readonly property alias progress: batch.progress
    readonly property alias current: batch.current
    property alias stopper: batch.stopper
    readonly property string runningText: qsTr("正在发送CGI命令…") + qsTr("（按Esc停止）")
    signal said(string message, int kind)
    /// A batch has ended with devices that were not done: "ipport" and "result" of each, by their results.
    signal failed(var devices)

    readonly property string prefix: "/cgi-bin/"
    readonly property int kept: 4000  // letters of an answer
    readonly property var whole: ({})  // longer answers, by the identities of their devices, the oldest first
    readonly property int wholeLimit: 32000000  // letters of them together
    property int wholeLength: 0

    /// The answer of a row, however long.
    function answerOf(row) {
        const values = deviceTable.get(row);
        const answer = whole[values.identity];
        return answer !== undefined && answer.startsWith(values.result) ? answer : values.result;
    }

    function forgetWhole(identity) {
        wholeLength -= whole[identity]?.length ?? 0;
        delete whole[identity];
    }

    /// A row is read often: it keeps the beginning of a long answer, and the whole one is kept here while there is room.
    function keepWhole(identity, answer) {
        forgetWhole(identity);
        if (answer.length <= kept)
            return;
        for (const other of Object.keys(whole)) {
            if (wholeLength + answer.length <= wholeLimit)
                break;
            forgetWhole(other);
        }
        whole[identity] = answer;
        wholeLength += answer.length;
    }

    /// What is wrong with a command, "" for nothing.
    function faultOf(command) {
        if (command === "")
            return qsTr("请填写CGI命令的具体内容。");
        return command.startsWith(prefix) ? "" : qsTr("URL格式错误。");
    }

    /// Where a command goes. A device behind a tunnel has its web page on a port of its own; "" when there is none, since
    /// the usual one would be that of this computer. A device that reports no web port has the usual one.
    function addressOf(ipport, command) {
        const colon = ipport.lastIndexOf(":");
        const ip = ipport.slice(0, colon);
        const webPort = ip === "127.0.0.1" ? deviceFactory.getP2PWebPort(Number(ipport.slice(colon + 1)))
                                           : deviceFactory.getDeviceInfo("dh", ipport).httpport;
        if (ip === "127.0.0.1" && !webPort)
            return "";
        return "http://" + ip + ":" + (webPort || 80) + command;
    }

    /// Returns the answer.
    function sendOne(row, command) {
        const address = addressOf(row.ipport, command);
        const answer = address === "" ? "Error:" + qsTr("没有通往设备网页端口的隧道。")
            : cgiManager.singleCGIConfig(address, localConfig.getSearchConfigUsrename(),
                                         localConfig.getSearchConfigPass(), row.ipport);
        deviceFactory.updataDeviceInfo("dh", "url", command, row.identity, row.ipport);
        keepWhole(row.identity, answer);
        deviceFactory.updataDeviceInfo("dh", "result", answer.slice(0, kept), row.identity, row.ipport);
        deviceTable.refreshDevice(row.identity);
        return answer;
    }

    /// Sends the command of one row.
    function send(row) {
        const values = deviceTable.get(row);
        const command = (values.url ?? "").trim();
        const fault = faultOf(command);
        if (fault !== "") {
            said(fault, OVToast.Error);
            return;
        }
        let answer = "";
        commands.remember(command);
        batch.start(1, () => answer = sendOne(values, command), () => values.ipport, () => {
            if (answer === "")
                said(qsTr("命令已执行，没有可显示的结果。"), OVToast.Information);
        });
    }

    /// Sends one command to each of these rows.
    function sendToAll(rows, command) {
        const failures = [];
        commands.remember(command);
        batch.start(rows.length, i => {
            const answer = sendOne(rows[i], command);
            if (answer.startsWith("Error:"))
                failures.push({ipport: rows[i].ipport, result: answer});
        }, i => rows[i].ipport, done => {
            const refused = failures.length;
            for (const row of rows.slice(done)) {
                deviceFactory.updataDeviceInfo("dh", "result", qsTr("未执行"), row.identity, row.ipport);
                deviceTable.refreshDevice(row.identity);
                failures.push({ipport: row.ipport, result: qsTr("未执行")});
            }
            if (done < rows.length)
                said(qsTr("已停止，完成 %1 / %2").arg(done).arg(rows.length), OVToast.Information);
            else
                said(qsTr("批量配置CGI命令已完成"), OVToast.Success);
            if (refused > 0)
                said(qsTr("%n 台设备未成功，请查看结果", "", refused), OVToast.Error);
            if (failures.length > 0)
                failed(cgiManager.sortList(failures, "result", Qt.AscendingOrder));
        });
    }

    visible: false

    // The window refuses to close while a command runs, and a recording may take hours.
    Connections {
        enabled: batch.running
        target: root.Window.window

        function onClosing() {
            batch.stopping = true;
        }
    }
    OVBatch {
        id: batch
        onStoppingChanged: if (stopping) root.cgiManager.stop()
    }
}
