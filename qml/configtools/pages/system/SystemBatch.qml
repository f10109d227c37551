// A system command and its batch.
import QtQuick
import configtools

QtObject {
    id: root

    required property Batches batches
    property Batch batch: null  // of the last command, null before
    property string command
    readonly property BatchReport report: batch?.report ?? none
    readonly property bool running: batch?.running ?? false
    readonly property string device: batch?.device ?? ""
    signal resulted(var devices, var results)  // see Batch
    signal retried  // `batch` is now the retry
    signal finished

    /// Returns false if the batch is refused.
    function run(command, title, devices, data) {
        const begun = batches.configureSystem("dh", command, title, data, devices);
        if (begun === null)
            return false;
        root.command = command;
        batch = begun;
        return true;
    }

    /// Cancels the next step, `title`, of the waiting devices.
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
