// Upgrades by document: the choice of the workbook, the report of its lines, and what has come of them.
import QtQuick
import configtools

Item {
    id: root

    required property var deviceFactory
    required property var fileDialogs
    property bool running: false
    property string name         // of the document's file
    property int percent: 0      // of the document
    property var lines: ({done: 0, total: 0})
    property var identities: []  // of its devices
    signal started(var identities)  // MACs, or addresses and ports of devices without a row
    signal said(string message, int kind)

    function choose() {
        if (running)
            said(qsTr("正在按另一个文档升级"), OVToast.Information);
        else
            fileDialogs.chooseFile(qsTr("打开"), ["Excel Files (*.xlsx)"], path => report(path));
    }

    function report(path) {
        const lines = deviceFactory.importUpgradeDocument("dh", path);
        const refusal = deviceFactory.importError("dh");
        if (refusal !== "" || lines.length === 0) {
            said(refusal !== "" ? refusal : qsTr("文档中没有设备"), OVToast.Error);
            return;
        }
        const dialog = reportDialog.wanted();
        dialog.load(path, lines);
        dialog.open();
    }

    function start(path, lines) {
        name = path.slice(path.lastIndexOf("/") + 1);
        percent = 0;
        // Those that the table upgrades already are refused to the document.
        identities = lines.map(line => line.mac !== "" ? line.mac : line.address).filter(
            identity => !UpgradeTools.isRunning(deviceFactory.getDeviceDetail("dh", identity).upgraderes ?? UpgradeTools.None));
        running = true;
        deviceFactory.startUpgradeByDocument("dh", [path]);
        count();
        started(identities);
    }

    function stop() {
        identities.forEach(identity => deviceFactory.stopUpgrade("dh", identity));
    }

    function count() {
        lines = deviceFactory.upgradeDocumentProgress("dh");
    }

    function openTemplate() {
        if (!deviceFactory.openTemplate())
            said(qsTr("打开模板文件失败。"), OVToast.Error);
    }

    visible: false

    Connections {
        target: root.deviceFactory
        enabled: root.running

        function onSignalUpdateScheduleUpgradeByDocument(filename, value) {
            root.percent = value;
        }
        function onSignalShowUpgradeFinishTip() {
            const result = root.deviceFactory.upgradeDocumentResult("dh");
            if (result === "")
                return;
            root.running = false;
            outcome.wanted().show(result, root.deviceFactory.upgradeDocumentSuccesses("dh") > 0
                ? OVMessageBox.Information : OVMessageBox.Error);
        }
    }
    Timer {
        interval: 250
        repeat: true
        running: root.running
        onTriggered: root.count()
    }
    // qmllint disable unqualified
    OVOnDemand {
        id: reportDialog
        visible: false
        sourceComponent: UpgradeReportDialog {
            onConfirmed: (path, lines) => root.start(path, lines)
        }
    }
    OVOnDemand {
        id: outcome
        visible: false
        sourceComponent: OVMessageBox {
            objectName: "upgradeOutcome"
        }
    }
    // qmllint enable unqualified
}
