// Imports devices from a list file (.xlsx, .csv, .xml or encrypted .devlist) in a batch that logs in to each device and
// adds its row.
import QtQuick
import configtools

Item {
    id: root

    required property var addingBatches  // an AddingBatches: starts batches that add devices to the list
    required property Batches batches  // starts batches for all pages; one batch runs at a time
    required property BusyState busyState  // running work of all pages, and the actions that it blocks
    required property var fileDialogs  // a FileDialogs: the desktop's dialogs for files and folders
    required property bool shown  // the page is visible
    property string encryptedPath  // the encrypted list that is being imported; "" for none
    property Batch batch: null  // batch of the last import or of its retry; null before
    /// The import has ended with failed lines that were not shown yet, as the page is hidden.
    property bool reportPending: false
    signal notify(string message, int severity)  // show this message; severity: an OVToast.Severity

    /// Asks for a file and starts the import. Refused after the choice while other work needs the rows, as an imported
    /// device may replace its row and change account and address.
    function start() {
        fileDialogs.chooseFile(qsTr("打开excel文件"),
                               ["Excel Files (*.xlsx)", "CSV Files (*.csv)", "XML Files (*.xml)", qsTr("加密的设备列表 (*.devlist)")],
                               path => importFile(path));
    }

    /// Imports a list file; asks for the passphrase of an encrypted one first. Refused as start().
    function importFile(path) {
        const refusal = busyState.refusal(BusyState.ChangeAddress);
        if (refusal !== "")
            notify(refusal, OVToast.Refusal);
        else if (DroppedFiles.kindOf(path) === DroppedFiles.EncryptedList)
            passphrase.instance().ask(path, "");
        else
            importWith(path, "");
    }

    /// Reads the list and starts the import.
    function importWith(path, phrase) {
        encryptedPath = phrase === "" ? "" : path;
        addingBatches.importList(qsTr("导入"), path, phrase);
    }

    /// The numbers of successful and of all devices of the import, as text.
    function summary() {
        const report = batch.report;
        return qsTr("批量导入设备：") + report.succeeded + "/" + report.total + " " + qsTr("台已完成");
    }

    /// Called at the end of the import. Without failures it notifies the summary. With failures a dialog lists the
    /// failed lines; while another page is shown, the summary is notified and the dialog opens when this page is shown.
    function notifyEnd() {
        const report = batch.report;
        reportPending = report.succeeded < report.total;
        if (!reportPending)
            notify(summary(), report.total > 0 ? OVToast.Success : OVToast.Information);
        else if (!shown)
            notify(summary(), OVToast.Information);
        showPendingReport();
    }

    /// Opens the dialog of failed lines if it is pending and the page is shown.
    function showPendingReport() {
        if (!reportPending || !shown || batch.running)
            return;
        reportPending = false;
        const dialog = importReport.instance();
        dialog.load(summary(), addingBatches.importFailures(batch));
        dialog.open();
    }

    visible: false
    onShownChanged: showPendingReport()

    Connections {
        target: root.addingBatches

        function onImportBegan(batch) {
            root.batch = batch;
        }
        function onImportRefused(reason, mayAskAgain) {
            if (mayAskAgain && root.encryptedPath !== "") {
                passphrase.instance().ask(root.encryptedPath, reason);
                return;
            }
            root.notify(qsTr("导入失败，可能格式不准确、文件内存在重复的MAC地址设备或者文件已经被打开！") + "\n" + reason, OVToast.Error);
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

    // qmllint disable unqualified
    OVOnDemand {
        id: passphrase
        visible: false
        sourceComponent: PassphraseDialog {
            id: phrases
            onAccepted: {
                const phrase = phrases.passphrase;
                phrases.close();
                root.importWith(phrases.path, phrase);
            }
        }
    }
    OVOnDemand {
        id: importReport
        visible: false
        sourceComponent: ListReportDialog {
            columns: [
                {key: "line", title: qsTr("行"), width: Theme.columnNumber, figure: true},
                {key: "address", title: qsTr("地址"), width: Theme.columnAddress, figure: true},
                {key: "reason", title: qsTr("原因"), width: Theme.columnAddress, stretch: 1}
            ]
            title: qsTr("导入结果")
        }
    }
    // qmllint enable unqualified
}
