// Takes snapshots of a device's channels and keeps the results. All channels run as a batch, a single one does not.
import QtQuick
import configtools

Item {
    id: root

    required property Batches batches
    required property var deviceFactory
    property Batch batch: null        // batch of all channels while it runs, else null
    property string ipport            // of the device
    property var companion: null      // LiveCompanion of an added device; null for the first device
    property string folder            // subfolder of the snapshots folder
    /// Maps with "channel" (from 0), "name", "state" (a State), "image" (URL, "" for none), "message" (error) and
    /// "revision" (number of results; undefined before the first).
    property var results: []
    property int running: 0           // channels without a result
    readonly property bool busy: running > 0
    readonly property int done: results.filter(entry => entry.state !== Snapshots.Waiting
                                                       && entry.state !== Snapshots.Taking).length

    enum State { Waiting, Taking, Taken, Failed }

    /// Folder name for a device address.
    function folderOf(ipport) {
        return ipport.replace(/[^0-9A-Za-z._-]+/g, "_");
    }

    /// Returns false if the batch is refused.
    function takeAll(ipport, channels) {
        const wanted = folderOf(ipport);
        batch = batches.takeSnapshots("dh", qsTr("抓图"), ipport, channels.map(entry => entry.name), wanted);
        if (!batch)
            return false;
        folder = wanted;
        root.ipport = ipport;
        companion = null;
        results = channels.map((entry, index) => ({
            channel: entry.channel, name: entry.name, image: "", message: "",
            state: index === 0 ? Snapshots.Taking : Snapshots.Waiting
        }));
        running = results.length;
        return true;
    }

    /// Cancels the channels that are still waiting.
    function stop() {
        if (batch)
            batch.stop();
    }

    function endBatch() {
        batch = null;
        running = 0;
        results = results.map(entry => entry.state === Snapshots.Waiting || entry.state === Snapshots.Taking
            ? Object.assign({}, entry, {state: Snapshots.Failed, message: qsTr("未执行")}) : entry);
    }

    /// Takes a snapshot of a channel and replaces its earlier one. `companion` is null for the first device.
    function take(ipport, entry, companion) {
        const wanted = folderOf(ipport);
        if (wanted !== folder)
            results = [];
        folder = wanted;
        root.ipport = ipport;
        root.companion = companion;
        if (!results.some(other => other.channel === entry.channel))
            results = results.concat([{channel: entry.channel, name: entry.name, image: "", message: "",
                                       state: Snapshots.Waiting}]);
        change(entry.channel, {state: Snapshots.Taking, message: ""});
        running += 1;
        if (companion)
            companion.takeSnapshot(entry.channel, folder);
        else
            deviceFactory.snapPictureToFile("dh", "againCapture", entry.channel, folder);
    }

    /// Called when an added device is removed: its running snapshots fail. Finished ones are kept.
    function leave(ipport) {
        if (companion === null || ipport !== root.ipport)
            return;
        companion = null;
        running = 0;
        results = results.map(entry => entry.state === Snapshots.Taking
            ? Object.assign({}, entry, {state: Snapshots.Failed, message: qsTr("设备已移出画面")}) : entry);
    }

    function change(channel, values) {
        results = results.map(entry => entry.channel === channel ? Object.assign({}, entry, values) : entry);
    }

    function note(channel, image, message) {
        if (running === 0)
            return;
        running -= 1;
        const before = results.find(entry => entry.channel === channel);
        // The revision makes the view reload a replaced file.
        change(channel, {image: image, message: message, revision: (before?.revision ?? 0) + 1,
                         state: image !== "" ? Snapshots.Taken : Snapshots.Failed});
    }

    visible: false

    Connections {
        target: root.batch

        function onFinished() {
            root.endBatch();
        }
    }
    Connections {
        target: root.companion

        function onSnapshotTaken(channel, image, message) {
            root.note(channel, image, message);
        }
    }
    Connections {
        enabled: root.companion === null
        target: root.deviceFactory

        function onSignalSnapPictureToFile(channel, image, message) {
            root.note(channel, image, message);
            // They are taken in order.
            const next = root.results.find(entry => entry.state === Snapshots.Waiting);
            if (next && root.busy)
                root.change(next.channel, {state: Snapshots.Taking});
        }
        function onSignalSnapPictureToFileAgain(channel, image, message) {
            root.note(channel, image, message);
        }
    }
}
