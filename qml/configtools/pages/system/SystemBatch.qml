// The last system command of the page and its batch.
import QtQuick
import configtools

QtObject {
    id: root

    required property Batches batches  // starts batches for all pages; one batch runs at a time
    property Batch batch: null  // of the last command or its retry; null before
    property string command  // name of the last command, see run()
    readonly property BatchReport report: batch?.report ?? none  // of the batch; empty before the first
    readonly property bool running: batch?.running ?? false
    readonly property string device: batch?.device ?? ""  // "address:port" of a device being processed, "" for none
    /// New results. devices: "address:port"; results: a LoginResult for each of them, 0 for a success. Some have names
    /// in BatchReport.Result, such as Waiting (for the new password) and NotDone (not reached, at the end).
    signal resulted(var devices, var results)
    signal retried  // `batch` is now the retry
    signal finished  // the batch has ended or was stopped

    /// Starts a command of the back end, such as "rebootDevice". `data`: its parameters, a map; the panels of the page
    /// make it (namespace SystemDataKey lists all keys). `title`: name for the user. `devices`: "address:port". Returns
    /// false after a refusal, which Batches reports.
    function run(command, title, devices, data) {
        const begun = batches.configureSystem("dh", command, title, data, devices);
        if (begun === null)
            return false;
        root.command = command;
        batch = begun;
        return true;
    }

    /// Sets the devices that wait for a further step (the new password after the check of the old one) to "not done".
    /// `title`: name of that step for the user.
    function cancelWaiting(title) {
        batch?.cancelWaiting(title);
    }

    readonly property BatchReport none: BatchReport {}
    readonly property Connections batchSignals: Connections {
        target: root.batch

        function onResulted(devices, results) {
            root.resulted(devices, results);
        }
        function onFinished() {
            root.finished();
        }
    }
    readonly property Connections retries: Connections {
        target: root.batches

        function onRetried(earlier, again) {
            if (earlier !== root.batch)
                return;
            root.batch = again;
            root.retried();
        }
    }
}
