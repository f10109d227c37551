// Opens the panel of batches, and saves results of batches to files. The end of writing is notified.
import QtQuick
import configtools

Item {
    id: root

    required property Batches batches  // starts batches for all pages; one batch runs at a time
    // qmllint disable unqualified
    readonly property var deviceFactory: CDeviceFactoryApi  // access to the device list and the devices
    readonly property var fileDialogs: FileDialogsApi  // the desktop's dialogs for files and folders
    // qmllint enable unqualified
    property var writtenPaths: []  // paths of files being written for this object
    signal notify(string message, int severity)  // show this message; severity: an OVToast.Severity

    /// Opens the panel with the latest batch.
    function show() {
        panel.instance().show();
    }

    /// Asks for a file (.xlsx or .csv), then writes the results of a batch to it in the background.
    function save(batch) {
        chooseFile(batch.title, batch.began, path => batches.saveResults(batch, path));
    }

    /// Asks for a file, then writes the results of all listed batches to it in the background.
    function saveAll() {
        chooseFile(qsTr("批处理记录"), new Date(), path => batches.saveAllResults(path));
    }

    /// Asks for a file whose suggested name is `subject` and the date `time`, then calls `write` with its path.
    function chooseFile(subject, time, write) {
        const name = subject + time.toLocaleString(Qt.locale("C"), " yyyy-MM-dd HH-mm-ss");
        fileDialogs.chooseNewFile(qsTr("保存结果"), ["Excel Files (*.xlsx)", "CSV Files (*.csv)"], name, path => {
            writtenPaths = writtenPaths.concat(path);
            write(path);
        });
    }

    visible: false

    Connections {
        target: root.batches

        function onResultsSaved(path, reason) {
            const index = root.writtenPaths.indexOf(path);
            if (index < 0)  // saved by another page
                return;
            root.writtenPaths = root.writtenPaths.filter((other, at) => at !== index);
            if (reason === "")
                root.notify(qsTr("结果已保存到 %1").arg(path), OVToast.Success);
            else
                root.notify(qsTr("结果无法保存，可以另选位置重试。\n%1").arg(reason), OVToast.Error);
        }
    }
    // qmllint disable unqualified
    OVOnDemand {
        id: panel
        visible: false
        sourceComponent: BatchPanel {
            batches: root.batches
            deviceFactory: root.deviceFactory
            onSaveAllRequested: root.saveAll()
            onSaveRequested: batch => root.save(batch)
        }
    }
    // qmllint enable unqualified
}
