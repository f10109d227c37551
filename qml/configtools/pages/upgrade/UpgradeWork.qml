// Upgrades of the devices in the table: files, confirmation, and refresh of rows.
import QtQuick
import configtools

Item {
    id: root

    required property Batches batches
    required property var deviceFactory
    required property var deviceTable  // a DeviceTableModel
    required property var fileDialogs
    required property var upgradeBatches
    required property bool shown
    signal changed  // any row may have changed
    signal notify(string message, int severity)

    function chooseFileForChecked() {
        if (deviceTable.checkedCount === 0)
            notify(qsTr("请选择一台设备"), OVToast.Refusal);
        else
            chooseFile(deviceTable.checkedMacs());
    }

    function chooseFile(identities) {
        fileDialogs.chooseFile(qsTr("选择升级文件"),
                               [qsTr("升级文件") + " (*.bin *.img *.upg)", qsTr("所有文件") + " (*)"], path => {
            const refusal = upgradeBatches.chooseFile(identities, path);
            changed();
            if (refusal !== "")
                notify(refusal, OVToast.Refusal);
        });
    }

    function startChecked() {
        if (deviceTable.checkedCount === 0)
            notify(qsTr("请选择一台设备"), OVToast.Refusal);
        else
            start(deviceTable.checkedMacs());
    }

    /// Retries upgrades that may succeed, including rows hidden by filters.
    function retry() {
        const identities = deviceFactory.upgradesToRetry("dh");
        if (identities.length === 0)
            notify(qsTr("没有可以重试的设备"), OVToast.Information);
        else
            start(identities);
    }

    function start(identities) {
        if (batches.mayStart())
            question.instance().ask(identities);
    }

    function startDocument(path) {
        question.instance().askDocument(path);
    }

    function chooseDocument() {
        if (batches.mayStart())
            fileDialogs.chooseFile(qsTr("打开"), ["Excel Files (*.xlsx)"], path => startDocument(path));
    }

    function openTemplate() {
        if (!deviceFactory.openTemplate())
            notify(qsTr("打开模板文件失败。"), OVToast.Error);
    }

    visible: false

    Connections {
        target: root.upgradeBatches

        function onRowsChanged(identities) {
            if (root.shown)
                root.deviceTable.refreshDevices(identities);
            else
                root.changed();
        }
        function onListChanged() {
            root.changed();
        }
        function onEnded(upgraded, failed, notDone) {
            if (notDone > 0)
                //: Devices that were to be upgraded.
                root.notify(qsTr("已停止：升级成功 %1 台，失败 %2 台，未执行 %3 台").arg(upgraded).arg(failed).arg(notDone),
                          failed > 0 ? OVToast.Error : OVToast.Information);
            else if (failed > 0)
                //: Devices that were upgraded.
                root.notify(qsTr("%n 台设备未升级成功，请查看结果", "", failed), OVToast.Error);
            else
                root.notify(qsTr("%n 台设备升级成功", "", upgraded), OVToast.Success);
        }
        function onDocumentEnded(text, hasSuccess) {
            outcome.instance().show(text, hasSuccess ? OVMessageBox.Information : OVMessageBox.Error);
        }
    }
    // qmllint disable unqualified
    OVOnDemand {
        id: question
        visible: false
        sourceComponent: UpgradePreviewDialog {
            deviceFactory: root.deviceFactory
            onConfirmed: identities => root.upgradeBatches.start(qsTr("设备升级"), identities)
            onDocumentRefused: reason => root.notify(reason, OVToast.Error)
            onDocumentConfirmed: (path, lines) => root.upgradeBatches.startDocument(qsTr("升级文档"), path, lines)
        }
    }
    OVOnDemand {
        id: outcome
        visible: false
        sourceComponent: OVMessageBox {
            objectName: "upgradeOutcome"
            title: qsTr("升级文档")
        }
    }
    // qmllint enable unqualified
}
