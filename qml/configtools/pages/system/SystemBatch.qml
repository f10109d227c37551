// A command that many devices get: the batch, and what the page shows of it.
import QtQuick
import configtools

QtObject {
    id: root

    required property Batches batches
    property Batch batch: null
    property string command
    property string title
    readonly property BatchReport report: batch?.report ?? none
    readonly property bool running: batch?.running ?? false
    readonly property int done: batch?.done ?? 0
    readonly property int total: batch?.total ?? 0
    readonly property string device: batch?.device ?? ""
    readonly property string outcome: running || report.summary === "" ? "" : title + qsTr("：") + report.summary
    signal resulted(var devices, var results)
    signal finished

    /// Returns false when it cannot begin.
    function run(command, title, devices, data) {
        const begun = batches.configureSystem("dh", command, title, data, devices);
        if (begun === null)
            return false;
        root.command = command;
        root.title = title;
        batch = begun;
        return true;
    }

    /// The devices that wait for the next step get none: `title` names it.
    function giveUpWaiting(title) {
        const given = report.giveUpWaiting();
        if (given.length === 0)
            return;
        root.title = title;
        resulted(given, Array(given.length).fill(BatchReport.NotDone));
    }

    readonly property BatchReport none: BatchReport {}
    readonly property Connections news: Connections {
        target: root.batch

        function onResulted(devices, results) {
            root.resulted(devices, results);
        }
        function onFinished() {
            root.finished();
        }
    }
}
