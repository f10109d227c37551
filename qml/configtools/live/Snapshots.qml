// Takes snapshots of channels of the live window and keeps the results. They are written to files, in a folder for each
// device in the folder of snapshots. takeAll() takes all channels of the first device as a batch, then those of the
// added devices one after another, each in the session of its device. take() takes a single channel without a batch. Both
// may only be called while `busy` is false.
import QtQuick
import configtools

Item {
    id: root

    required property Batches batches  // starts batches for all pages; one batch runs at a time
    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    property Batch batch: null        // batch of the first device while it runs, otherwise null
    property bool all: false          // takeAll() is in progress
    property bool stopping: false     // the waiting channels are cancelled; they fail when the running one ends
    property var companion: null      // LiveCompanion whose channel is being taken; null for none
    /// Maps with "ipport", "companion" (null for the first device), "channel" (from 0), "name", "caption" (name with
    /// the device), "state" (a State), "image" (URL of the file, "" for none), "message" (error) and "revision" (number
    /// of results; undefined before the first).
    property var results: []
    readonly property bool busy: results.some(isPending)  // a result is waiting or being taken
    readonly property int done: results.filter(entry => !isPending(entry)).length  // taken or failed ones
    readonly property bool several: results.some(entry => entry.ipport !== results[0].ipport)  // of several devices

    /// Waiting: for earlier channels. Taking: in progress. Taken: the file is written.
    enum State { Waiting, Taking, Taken, Failed }

    /// Name of the folder of a device ("address:port") in the folder of snapshots.
    function folderOf(ipport) {
        return ipport.replace(/[^0-9A-Za-z._-]+/g, "_");
    }

    function isPending(entry) {
        return entry.state === Snapshots.Waiting || entry.state === Snapshots.Taking;
    }

    /// The result, waiting for its snapshot, for an element of LiveGrid.channels.
    function resultOf(entry) {
        // The caption of a channel without a name is only that of its device.
        const caption = entry.caption.endsWith(entry.name) ? entry.caption : entry.caption + " · " + entry.name;
        return {ipport: entry.ipport, companion: entry.companion, channel: entry.channel, name: entry.name,
                caption: caption, image: "", message: "", state: Snapshots.Waiting};
    }

    /// Takes snapshots of `channels`, elements of LiveGrid.channels: all channels of the first device from 0 on, then any
    /// channels of added devices. The batch takes every channel of its session and finds the names by these positions.
    /// Returns false and keeps the results if the batch is refused (reported by Batches) or there is no session.
    function takeAll(channels) {
        const own = channels.filter(entry => !entry.companion);
        batch = batches.takeSnapshots("dh", qsTr("抓图"), own[0].ipport, own.map(entry => entry.name),
            folderOf(own[0].ipport));
        if (!batch)
            return false;
        all = true;
        stopping = false;
        results = channels.map(resultOf);
        change(results[0], {state: Snapshots.Taking});
        return true;
    }

    /// Cancels the channels of takeAll() that are still waiting: they fail when the running one has ended.
    function stop() {
        stopping = true;
        if (batch)
            batch.stop();
    }

    /// Takes the end of the batch. If it was stopped early, the added devices are cancelled, too.
    function endBatch() {
        const ownIsLeft = results.some(entry => !entry.companion && isPending(entry));
        batch = null;
        fail(entry => !entry.companion, qsTr("未执行"));
        stopping = stopping || ownIsLeft;
        takeNext();
    }

    /// Continues with the next waiting channel of the added devices; after stop(), all waiting ones fail.
    function takeNext() {
        if (stopping)
            fail(entry => entry.state === Snapshots.Waiting, qsTr("未执行"));
        const next = results.find(entry => entry.state === Snapshots.Waiting);
        if (next)
            begin(next);
        else
            all = false;
    }

    /// Takes a snapshot of a channel, an element of LiveGrid.channels, and replaces its earlier result. If there is no
    /// result of this device yet, the results of other devices are removed.
    function take(entry) {
        if (!results.some(other => other.ipport === entry.ipport))
            results = [];
        if (!results.some(other => isSame(other, entry)))
            results = results.concat([resultOf(entry)]);
        begin(entry);
    }

    /// Starts the snapshot of a result. Without a session of its added device it fails.
    function begin(entry) {
        const device = entry.companion;
        change(entry, {state: Snapshots.Taking, message: ""});
        if (!device) {
            deviceFactory.snapPictureToFile("dh", "againCapture", entry.channel, folderOf(entry.ipport));
        } else if (device.loggedIn) {
            companion = device;
            device.takeSnapshot(entry.channel, folderOf(entry.ipport));
        } else {
            note(device, entry.channel, "", device.failure);
        }
    }

    /// Called before an added device is removed: its pending snapshots fail. Finished ones are kept.
    function leave(ipport) {
        drop(entry => entry.companion && entry.ipport === ipport);
    }

    /// Same for all added devices.
    function leaveAll() {
        drop(entry => entry.companion);
    }

    /// Ends the pending snapshots for which the function `applies` returns true, and continues with the others.
    function drop(applies) {
        const ends = companion !== null && results.some(entry => applies(entry) && entry.companion === companion);
        fail(applies, qsTr("设备已移出画面"));
        if (!ends)
            return;
        companion = null;
        takeNext();
    }

    /// Sets the pending results for which the function `applies` returns true to failed, with this message.
    function fail(applies, message) {
        results = results.map(entry => isPending(entry) && applies(entry)
            ? Object.assign({}, entry, {state: Snapshots.Failed, message: message}) : entry);
    }

    function isSame(one, other) {
        return one.ipport === other.ipport && one.channel === other.channel;
    }

    function change(changed, values) {
        results = results.map(entry => isSame(entry, changed) ? Object.assign({}, entry, values) : entry);
    }

    /// Takes a finished snapshot of a pending channel: URL of the file, or "" and the reason. `device`: "companion".
    function note(device, channel, image, message) {
        const before = results.find(entry => entry.companion === device && entry.channel === channel && isPending(entry));
        if (!before)
            return;
        // The revision makes the view reload a replaced file.
        change(before, {image: image, message: message, revision: (before.revision ?? 0) + 1,
                        state: image !== "" ? Snapshots.Taken : Snapshots.Failed});
        if (!device)
            return;
        companion = null;
        takeNext();
    }

    visible: false

    Connections {
        target: root.batch

        function onChanged() {
            root.stopping = root.stopping || root.batch.stopping;
        }
        function onFinished() {
            root.endBatch();
        }
    }
    Connections {
        target: root.companion

        function onSnapshotTaken(channel, image, message) {
            root.note(root.companion, channel, image, message);
        }
        function onLoggedInChanged() {
            if (root.companion.loggedIn)
                return;
            // The session has ended, and the snapshot with it.
            const ended = root.results.find(entry => entry.companion === root.companion
                                                     && entry.state === Snapshots.Taking);
            if (ended)
                root.note(root.companion, ended.channel, "", root.companion.failure);
        }
    }
    Connections {
        target: root.deviceFactory

        function onSignalSnapPictureToFile(channel, image, message) {
            root.note(null, channel, image, message);
            // They are taken in order.
            const next = root.results.find(entry => !entry.companion && entry.state === Snapshots.Waiting);
            if (next && root.batch)
                root.change(next, {state: Snapshots.Taking});
        }
        function onSignalSnapPictureToFileAgain(channel, image, message) {
            root.note(null, channel, image, message);
        }
    }
}
