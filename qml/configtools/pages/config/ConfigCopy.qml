// Copies the encode settings of the current channel to the same channel of other devices, in a batch. The tree shows
// the result of each device.
import QtQuick
import configtools

Item {
    id: root

    required property Batches batches  // starts batches for all pages; one batch runs at a time
    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    required property OVTreeModel devices  // the tree that shows the results
    property Batch batch: null  // the latest copy or its retry; null before
    readonly property bool running: batch?.running ?? false
    /// "address:port" of a device that is being written; "" for none.
    readonly property string current: running ? batch.device : ""
    signal notify(string message, int severity, int duration)  // shows a toast; severity: of OVToast; duration in ms

    /// Starts the copy to these devices ("address:port"). Does nothing after a refusal, which Batches reports.
    function start(targets) {
        const begun = batches.copyEncodeSettings("dh", qsTr("复制编码配置"), targets);
        if (begun === null)
            return;
        devices.clearResults();
        batch = begun;
    }

    /// The text of a result in the tree, for its tool tip. `result`: a LoginResult or OVTreeModel.PartlyDone, whose
    /// text is the list of settings that the device did not take. `ipport`: "address:port" of the device. The text of a
    /// LoginResult is its name and, in a second line, the text from the batch, if any.
    function resultText(result, ipport) {
        if (result === BatchReport.NotDone)
            return deviceFactory.getErrorName(result);
        const skipped = batch?.textOf(ipport) ?? "";
        if (result === OVTreeModel.PartlyDone)
            return skipped;
        return deviceFactory.getErrorName(result) + (skipped === "" ? "" : "\n" + skipped);
    }

    /// Notifies the numbers of devices by result.
    function notifyEnd() {
        const report = batch.report;
        const failed = report.failed;
        const notDone = report.notDone;
        const incomplete = batch.partlyDone();  // devices that took only a part
        const complete = report.succeeded - incomplete;
        const parts = Array.from([
            complete > 0 ? qsTr("%n 台设备已复制", "", complete) : "",
            incomplete > 0 ? qsTr("%n 台设备只复制了一部分", "", incomplete) : "",
            failed > 0 ? qsTr("%n 台设备复制失败", "", failed) : "",
            notDone > 0 ? qsTr("%n 台设备未执行", "", notDone) : ""
        ]).filter(part => part !== "");
        const severity = failed > 0 ? OVToast.Error : incomplete + notDone > 0 ? OVToast.Information : OVToast.Success;
        notify(parts.join(qsTr("，")), severity, failed + incomplete + notDone > 0 ? Theme.errorToastDuration : Theme.toastDuration);
    }

    visible: false

    Connections {
        target: root.batches

        function onRetried(earlier, again) {
            if (earlier === root.batch)
                root.batch = again;
        }
    }

    Connections {
        target: root.batch

        function onResulted(ipports, results) {
            root.devices.takeResults(ipports, results, root.batch.textsOf(ipports));
        }
        function onFinished() {
            root.notifyEnd();
        }
    }
}
