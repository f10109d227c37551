// The upgrades of the upgrade page: choice of files, confirmation, start, refresh of rows and messages. While another
// batch runs, Batches refuses a start by its signal refused(); all other refusals are notified here.
import QtQuick
import configtools

Item {
    id: root

    required property Batches batches  // starts batches for all pages; one batch runs at a time
    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    required property var deviceTable  // a DeviceTableModel: the rows of the page, with their ticks
    required property var fileDialogs  // a FileDialogs: the desktop's dialogs for files and folders
    required property var upgradeBatches  // an UpgradeBatches, which runs the upgrades
    required property bool shown  // the page is visible: changed rows are read immediately, otherwise see changed()
    signal changed  // any row may have changed: the page reads the list again, a hidden page when it is shown
    signal notify(string message, int severity)  // show this message; severity: an OVToast.Severity

    /// Sets one firmware file for all ticked devices. Refused if none is ticked.
    function chooseFileForChecked() {
        if (deviceTable.checkedCount === 0)
            notify(qsTr("请选择一台设备"), OVToast.Refusal);
        else
            chooseFile(deviceTable.checkedMacs());
    }

    /// Asks for a firmware file and sets it for the devices with these identities, except for those that are being
    /// upgraded. Notifies if a device cannot be upgraded with it; the file is set nevertheless.
    function chooseFile(identities) {
        fileDialogs.chooseFile(qsTr("选择升级文件"),
                               [qsTr("升级文件") + " (*.bin *.img *.upg)", qsTr("所有文件") + " (*)"], path => {
            const refusal = upgradeBatches.chooseFile(identities, path);
            changed();
            if (refusal !== "")
                notify(refusal, OVToast.Refusal);
        });
    }

    /// Starts upgrades of the ticked devices, after a confirmation. Refused if none is ticked.
    function startChecked() {
        if (deviceTable.checkedCount === 0)
            notify(qsTr("请选择一台设备"), OVToast.Refusal);
        else
            start(deviceTable.checkedMacs());
    }

    /// Starts the failed upgrades that may succeed now, after a confirmation. Includes devices that are not ticked or
    /// hidden by filters.
    function retry() {
        const identities = deviceFactory.upgradesToRetry("dh");
        if (identities.length === 0)
            notify(qsTr("没有可以重试的设备"), OVToast.Information);
        else
            start(identities);
    }

    /// Confirms and starts upgrades of the devices with these identities. Refused while a batch runs.
    function start(identities) {
        if (batches.mayStart())
            question.instance().ask(identities);
    }

    /// Reads a document, then confirms and starts its upgrades. Notifies if it cannot be used. `path`: of a workbook.
    function startDocument(path) {
        question.instance().askDocument(path);
    }

    /// Asks for a document, then startDocument(). Refused while a batch runs.
    function chooseDocument() {
        if (batches.mayStart())
            fileDialogs.chooseFile(qsTr("打开"), ["Excel Files (*.xlsx)"], path => startDocument(path));
    }

    /// Opens the template of documents in the desktop's application. Notifies a failure.
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
