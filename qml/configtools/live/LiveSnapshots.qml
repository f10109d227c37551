// Snapshots in the live window: takes them, shows their results in a dialog and reports them as running work.
import QtQuick
import configtools

Item {
    id: root

    required property Batches batches  // starts batches for all pages; one batch runs at a time
    required property BusyState busyState  // running work of all pages, and the actions that it blocks
    required property var channels  // LiveGrid.channels
    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    required property bool shown  // the window is open: only then snapshots are reported to `busyState`
    readonly property Batch batch: taking.batch  // batch of the first device while it runs, otherwise null
    readonly property bool busy: taking.busy  // snapshots are waiting or being taken
    signal notify(string message, int severity)  // the main window shows this message; severity: of OVToast

    // take(), takeAgain() and takeAll() may only be called while `busy` is false.

    /// Takes a snapshot of a channel, an element of `channels`, and shows the results.
    function take(entry) {
        taking.take(entry);
        results.instance().open();
    }

    /// Repeats the snapshot of a channel (from 0) of a device. If the device was removed, the dialog shows a refusal.
    function takeAgain(ipport, channel) {
        const entry = channels.find(shown => shown.ipport === ipport && shown.channel === channel);
        if (entry)
            take(entry);
        else
            results.instance().refuse(qsTr("设备已移出画面"));
    }

    /// Takes snapshots of all channels of all devices and shows the results; nothing if Snapshots.takeAll() returns
    /// false. `channels` must contain a channel of the first device.
    function takeAll() {
        if (taking.takeAll(channels))
            results.instance().open();
    }

    /// Cancels the waiting snapshots, see Snapshots.stop().
    function stop() {
        taking.stop();
    }

    /// Closes the results. Running snapshots go on.
    function hide() {
        results.item?.close();
    }

    /// Ends the snapshots of an added device, see Snapshots.leave().
    function leave(ipport) {
        taking.leave(ipport);
    }

    /// Same for all added devices.
    function leaveAll() {
        taking.leaveAll();
    }

    /// Opens the folder of the snapshots in the system's file manager. For snapshots of several devices it is the one
    /// that contains their folders. There must be a snapshot.
    function openFolder() {
        const folderOf = path => path.slice(0, path.lastIndexOf("/"));
        const folders = taking.results.filter(entry => entry.image !== "").map(entry => folderOf(entry.image));
        const folder = folders.every(other => other === folders[0]) ? folders[0] : folderOf(folders[0]);
        if (!Qt.openUrlExternally(folder))
            notify(qsTr("无法打开文件夹：%1").arg(folder), OVToast.Error);
    }

    visible: false

    Snapshots {
        id: taking
        batches: root.batches
        deviceFactory: root.deviceFactory
    }
    BusyReport {
        active: taking.busy && !taking.batch && root.shown
        need: BusyState.Program
        state: root.busyState
        title: qsTr("抓图")
    }
    // qmllint disable unqualified
    OVOnDemand {
        id: results
        visible: false
        sourceComponent: SnapshotDialog {
            snapshots: taking
            onAgainRequested: (ipport, channel) => root.takeAgain(ipport, channel)
            onFolderRequested: root.openFolder()
        }
    }
    // qmllint enable unqualified
}
