// Takes snapshots of a device's channels and keeps what came of them. All channels are a batch, a single one is not.
import QtQuick
import configtools

Item {
    id: root

    required property Batches batches
    required property var deviceFactory
    property Batch batch: null        // of all channels, while it runs
    property string ipport            // of the device
    property var companion: null      // a LiveCompanion, which takes the pictures of its device; null for the session's
    property string folder            // of the device, below the folder of all snapshots
    property var results: []          // maps of "channel", "name", "state", "picture", "message", "revision"
    property int running: 0           // channels that are still to be reported
    readonly property bool busy: running > 0
    readonly property int done: results.filter(entry => entry.state !== Snapshots.Waiting
                                                       && entry.state !== Snapshots.Taking).length

    enum State { Waiting, Taking, Taken, Failed }

    /// A device's address as the name of a folder.
    function folderOf(ipport) {
        return ipport.replace(/[^0-9A-Za-z._-]+/g, "_");
    }

    /// Returns false when the batch is refused.
    function takeAll(ipport, channels) {
        const wanted = folderOf(ipport);
        batch = batches.takeSnapshots("dh", qsTr("抓图"), ipport, channels.map(entry => entry.name), wanted);
        if (!batch)
            return false;
        folder = wanted;
        root.ipport = ipport;
        companion = null;
        results = channels.map((entry, place) => ({
            channel: entry.channel, name: entry.name, picture: "", message: "",
            state: place === 0 ? Snapshots.Taking : Snapshots.Waiting
        }));
        running = results.length;
        return true;
    }

    /// Leaves out the channels that are not taken yet.
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

    /// Takes a snapshot of one channel; an earlier one is replaced. `companion` is that of an added device, else null.
    function take(ipport, entry, companion) {
        const wanted = folderOf(ipport);
        if (wanted !== folder)
            results = [];
        folder = wanted;
        root.ipport = ipport;
        root.companion = companion;
        if (!results.some(other => other.channel === entry.channel))
            results = results.concat([{channel: entry.channel, name: entry.name, picture: "", message: "",
                                       state: Snapshots.Waiting}]);
        change(entry.channel, {state: Snapshots.Taking, message: ""});
        running += 1;
        if (companion)
            companion.takePicture(entry.channel, folder);
        else
            deviceFactory.snapPictureToFile("dh", "againCapture", entry.channel, folder);
    }

    /// An added device goes, with what it was taking. Its pictures stay.
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

    function note(channel, picture, message) {
        if (running === 0)
            return;
        running -= 1;
        const before = results.find(entry => entry.channel === channel);
        // The revision makes the view read a replaced file again.
        change(channel, {picture: picture, message: message, revision: (before?.revision ?? 0) + 1,
                         state: picture !== "" ? Snapshots.Taken : Snapshots.Failed});
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

        function onPictureTaken(channel, picture, message) {
            root.note(channel, picture, message);
        }
    }
    Connections {
        enabled: root.companion === null
        target: root.deviceFactory

        function onSignalSnapPictureToFile(channel, picture, message) {
            root.note(channel, picture, message);
            // They are taken in their order.
            const next = root.results.find(entry => entry.state === Snapshots.Waiting);
            if (next && root.busy)
                root.change(next.channel, {state: Snapshots.Taking});
        }
        function onSignalSnapPictureToFileAgain(channel, picture, message) {
            root.note(channel, picture, message);
        }
    }
}
