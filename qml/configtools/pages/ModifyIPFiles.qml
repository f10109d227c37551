// Writing device lists to files and reading them back.
import QtQuick
import configtools

Item {
    id: root

    required property var addingBatches
    required property Batches batches
    required property BusyState busyState
    required property var deviceFactory
    required property var fileDialogs
    required property var deviceTable  // a DeviceTableModel
    required property bool shown  // the page is
    readonly property bool running: addingBatches.reading || writing
    property bool writing: false
    readonly property string runningText: addingBatches.reading ? qsTr("正在读取设备列表…") : qsTr("正在导出设备…")
    property Batch batch: null  // the last import
    property bool untold: false  // the lines of it that failed are still to be shown
    signal said(string message, int kind)

    function startExport() {
        if (deviceTable.checkedCount === 0)
            said(qsTr("请选择一台设备"), OVToast.Refusal);
        else
            format.wanted().open();
    }

    /// A list of the same name that the folder holds already is not replaced unasked.
    function exportTo(folder, fileName) {
        if (!fileDialogs.exists(folder + "/" + fileName)) {
            writeList(folder, fileName);
            return;
        }
        const asked = question.wanted();
        asked.folder = folder;
        asked.fileName = fileName;
        asked.show(qsTr("%1 已存在，是否覆盖？").arg(folder + "/" + fileName), OVMessageBox.DangerQuestion);
    }

    function writeList(folder, fileName) {
        const macs = deviceTable.checkedMacs();
        writing = true;
        hold.open();
        paint.run(() => {
            const written = deviceFactory.exportDevice("dh", folder, macs, fileName);
            writing = false;
            hold.release();
            if (written)
                reportExport(qsTr("导出设备成功\n文件路径:") + folder + "/" + fileName);
            else
                said(qsTr("导出设备失败，请检查本机是否已经安装了Office"), OVToast.Error);
        });
    }

    /// Tells of the success, and of what the file will not give back.
    function reportExport(success) {
        const faults = deviceFactory.exportFaults("dh");
        if (faults.length === 0) {
            said(success, OVToast.Success);
            return;
        }
        const dialog = exportReport.wanted();
        dialog.load(success + "\n" + qsTr("以下内容无法从该文件正确导入："), faults);
        dialog.open();
    }

    function startImport() {
        fileDialogs.chooseFile(qsTr("打开excel文件"),
                               ["Excel Files (*.xlsx)", "CSV Files (*.csv)", "XML Files (*.xml)"], path => {
            // An imported device takes the place of its row, with another account and address.
            const refusal = busyState.refusal(BusyState.ChangeAddress);
            if (refusal !== "") {
                said(refusal, OVToast.Refusal);
                return;
            }
            addingBatches.importList(qsTr("导入"), path);
        });
    }

    function summary() {
        const report = batch.report;
        return qsTr("批量导入设备：") + report.succeeded + "/" + report.total + " " + qsTr("台已完成");
    }

    /// On another page the user is at something else: what failed is shown when he comes back.
    function tellEnd() {
        const report = batch.report;
        untold = report.succeeded < report.total;
        if (!untold)
            said(summary(), report.total > 0 ? OVToast.Success : OVToast.Information);
        else if (!shown)
            said(summary(), OVToast.Information);
        tellUntold();
    }

    function tellUntold() {
        if (!untold || !shown || batch.running)
            return;
        untold = false;
        const dialog = importReport.wanted();
        dialog.load(summary(), addingBatches.importFailures(batch));
        dialog.open();
    }

    visible: false
    onShownChanged: tellUntold()

    Connections {
        target: root.addingBatches

        function onImportBegan(batch) {
            root.batch = batch;
        }
        function onImportRefused(reason) {
            root.said(qsTr("导入失败，可能格式不准确、文件内存在重复的MAC地址设备或者文件已经被打开！") + "\n" + reason, OVToast.Error);
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
            root.tellEnd();
        }
    }
    OVAfterPaint {
        id: paint
    }
    OVInputHold {
        id: hold
    }

    // qmllint disable unqualified
    OVOnDemand {
        id: format
        visible: false
        sourceComponent: ExportDialog {
            id: formats
            onAccepted: {
                const fileName = formats.fileName;
                formats.close();
                root.fileDialogs.chooseFolder(qsTr("请选择文件夹"), folder => root.exportTo(folder, fileName));
            }
        }
    }
    OVOnDemand {
        id: question
        visible: false
        sourceComponent: OVMessageBox {
            property string folder
            property string fileName
            objectName: "overwriteQuestion"
            okText: qsTr("覆盖")
            title: qsTr("覆盖文件")
            onAccepted: root.writeList(folder, fileName)
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
    OVOnDemand {
        id: exportReport
        visible: false
        sourceComponent: ListReportDialog {
            columns: [
                {key: "address", title: qsTr("地址"), width: Theme.columnAddress, figure: true},
                {key: "name", title: qsTr("名称"), width: Theme.columnAddress},
                {key: "column", title: qsTr("列"), width: Theme.columnAddress},
                {key: "reason", title: qsTr("原因"), width: Theme.columnAddress, stretch: 1}
            ]
            title: qsTr("导出结果")
        }
    }
    // qmllint enable unqualified
}
