// Exports the ticked devices to a list file (.xlsx, .csv, .xml or encrypted .devlist), and imports devices from such a
// file (ModifyIPImport).
import QtQuick
import configtools

Item {
    id: root

    required property var addingBatches  // an AddingBatches: starts batches that add devices to the list
    required property Batches batches  // starts batches for all pages; one batch runs at a time
    required property BusyState busyState  // running work of all pages, and the actions that it blocks
    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    required property var fileDialogs  // a FileDialogs: the desktop's dialogs for files and folders
    required property var deviceTable  // a DeviceTableModel: the rows of the page, with their ticks
    required property bool shown  // the page is visible
    /// A list is being read or written; the batch of the import is not included.
    readonly property bool running: addingBatches.reading || writing
    property bool writing: false  // a list is being written: the window is blocked
    readonly property string runningText: addingBatches.reading ? qsTr("正在读取设备列表…") : qsTr("正在导出设备…")
    signal notify(string message, int severity)  // show this message; severity: an OVToast.Severity

    /// Asks for format and folder, then writes the ticked devices. Refused if no device is ticked.
    function startExport() {
        if (deviceTable.checkedCount === 0)
            notify(qsTr("请选择一台设备"), OVToast.Refusal);
        else
            format.instance().open();
    }

    /// Writes the ticked devices; asks before it replaces an existing file. `folder`: a path. The suffix of `fileName`
    /// is the format. `protection`: see writeList().
    function exportTo(folder, fileName, protection) {
        if (!fileDialogs.exists(folder + "/" + fileName)) {
            writeList(folder, fileName, protection);
            return;
        }
        const asked = question.instance();
        asked.folder = folder;
        asked.fileName = fileName;
        asked.protection = protection;
        asked.show(qsTr("%1 已存在，是否覆盖？").arg(folder + "/" + fileName), OVMessageBox.DangerQuestion);
    }

    /// Writes the ticked devices and replaces an existing file. The window is blocked meanwhile; writing begins after
    /// the progress text is painted. `protection`: "passwords" (of ExportDialog) and "passphrase" ("" for none).
    function writeList(folder, fileName, protection) {
        const macs = deviceTable.checkedMacs();
        writing = true;
        blocker.block();
        paint.run(() => {
            const written = protection.passwords === ExportDialog.Readable
                ? deviceFactory.exportDevice("dh", folder, macs, fileName)
                : deviceFactory.exportProtected("dh", folder, macs, fileName,
                                                protection.passwords === ExportDialog.LeftOut, protection.passphrase);
            writing = false;
            blocker.release();
            if (written)
                reportExport(qsTr("导出设备成功\n文件路径:") + folder + "/" + fileName);
            else
                notify(qsTr("导出设备失败，请检查本机是否已经安装了Office"), OVToast.Error);
        });
    }

    /// Notifies `success`. If the file format cannot keep some values, so that an import would read other ones, a
    /// dialog with `success` lists them instead.
    function reportExport(success) {
        const faults = deviceFactory.exportFaults("dh");
        if (faults.length === 0) {
            notify(success, OVToast.Success);
            return;
        }
        const dialog = exportReport.instance();
        dialog.load(success + "\n" + qsTr("以下内容无法从该文件正确导入："), faults);
        dialog.open();
    }

    /// Asks for a list file and imports it, see ModifyIPImport.
    function startImport() {
        imports.start();
    }

    /// Imports a list file, see ModifyIPImport.
    function importFile(path) {
        imports.importFile(path);
    }

    visible: false

    ModifyIPImport {
        id: imports
        addingBatches: root.addingBatches
        batches: root.batches
        busyState: root.busyState
        fileDialogs: root.fileDialogs
        shown: root.shown
        onNotify: (message, severity) => root.notify(message, severity)
    }
    OVAfterPaint {
        id: paint
    }
    OVInputBlocker {
        id: blocker
    }

    // qmllint disable unqualified
    OVOnDemand {
        id: format
        visible: false
        sourceComponent: ExportDialog {
            id: formats
            onAccepted: {
                const fileName = formats.fileName;
                const protection = {passwords: formats.passwords, passphrase: formats.passphrase};
                formats.close();
                root.fileDialogs.chooseFolder(qsTr("请选择文件夹"),
                                              folder => root.exportTo(folder, fileName, protection));
            }
        }
    }
    OVOnDemand {
        id: question
        visible: false
        sourceComponent: OVMessageBox {
            property string folder
            property string fileName
            property var protection: ({})
            objectName: "overwriteQuestion"
            okText: qsTr("覆盖")
            title: qsTr("覆盖文件")
            onAccepted: {
                const chosen = protection;
                protection = {};  // it may have a passphrase
                root.writeList(folder, fileName, chosen);
            }
            onRejected: protection = {}
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
