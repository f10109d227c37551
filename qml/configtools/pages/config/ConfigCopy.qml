// Takes the encode settings of the current device over to others, one after another.
import QtQuick
import configtools

Item {
    id: root

    required property var deviceFactory
    required property OVTreeModel devices
    readonly property alias running: batch.running
    readonly property alias progress: batch.progress
    readonly property alias current: batch.current
    signal said(string message, int kind, int stay)

    property int complete: 0
    property int incomplete: 0
    property int failed: 0

    function start(targets) {
        complete = incomplete = failed = 0;
        devices.clearResults();
        batch.start(targets.length, i => deviceFactory.copyConfigToDevice("dh", [targets[i]]), i => targets[i],
                    done => tell(targets.slice(done)));
    }

    function skippedBy(ipport) {
        return deviceFactory.getDeviceInfo("dh", ipport).result ?? "";
    }

    function wordOfResult(result, ipport) {
        if (result === BatchReport.NotDone)
            return deviceFactory.getErrorName(result);
        const skipped = skippedBy(ipport);
        if (result === OVTreeModel.PartlyDone)
            return skipped;
        return deviceFactory.getErrorName(result) + (skipped === "" ? "" : "\n" + skipped);
    }

    function tell(notDone) {
        notDone.forEach(ipport => devices.setResult(ipport, BatchReport.NotDone));
        const parts = Array.from([
            complete > 0 ? qsTr("%n 台设备已复制", "", complete) : "",
            incomplete > 0 ? qsTr("%n 台设备只复制了一部分", "", incomplete) : "",
            failed > 0 ? qsTr("%n 台设备复制失败", "", failed) : "",
            notDone.length > 0 ? qsTr("%n 台设备未执行", "", notDone.length) : ""
        ]).filter(part => part !== "");
        const kind = failed > 0 ? OVToast.Error : incomplete + notDone.length > 0 ? OVToast.Information : OVToast.Success;
        said(parts.join(qsTr("，")), kind, failed + incomplete + notDone.length > 0 ? Theme.errorToastStay : Theme.toastStay);
    }

    visible: false

    OVBatch {
        id: batch
    }

    Connections {
        enabled: batch.running
        target: root.deviceFactory

        function onSignalRetToCopyConfig(ipport, result) {
            const partly = result === 0 && root.skippedBy(ipport) !== "";
            if (partly)
                ++root.incomplete;
            else if (result === 0)
                ++root.complete;
            else
                ++root.failed;
            root.devices.setResult(ipport, partly ? OVTreeModel.PartlyDone : result);
        }
    }
}
