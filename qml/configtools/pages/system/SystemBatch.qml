// Runs a command on devices one after another. Each is a call that takes its time on this thread, so there is a
// picture between two.
import QtQuick
import configtools

QtObject {
    id: root

    required property var deviceFactory
    property string command
    property string title
    property var devices: []
    property var dataOf: () => ({})
    property bool running: false
    property bool stopping: false
    property int done: 0
    readonly property BatchReport report: BatchReport {}
    readonly property string outcome: running || report.summary === "" ? "" : title + qsTr("：") + report.summary
    readonly property string device: running ? devices[done] ?? "" : ""
    signal resulted(string ipport, int result)
    signal finished

    /// `dataOf` makes the data of the command for each device anew: a time is that of its sending.
    function run(command, title, devices, dataOf) {
        root.command = command;
        root.title = title;
        root.devices = devices;
        root.dataOf = dataOf;
        report.begin(devices);
        done = 0;
        stopping = false;
        running = true;
        next.start();
    }

    /// Leaves out what follows the device that is being asked.
    function stop() {
        stopping = true;
    }

    /// The devices that wait for the next step get none: `title` names it.
    function giveUpWaiting(title) {
        const given = report.giveUpWaiting();
        if (given.length > 0)
            root.title = title;
        for (const ipport of given)
            resulted(ipport, BatchReport.NotDone);
    }

    function step() {
        if (done < devices.length && !stopping) {
            deviceFactory.systemConfig("dh", command, dataOf(), [devices[done]]);
            ++done;
            next.start();
        } else {
            // Also a device that was asked and brought no result.
            report.devicesWith(BatchReport.NotDone).forEach(ipport => resulted(ipport, BatchReport.NotDone));
            running = false;
            finished();
        }
    }

    readonly property Timer next: Timer {
        interval: Theme.frame
        onTriggered: root.step()
    }

    readonly property Connections results: Connections {
        enabled: root.running
        target: root.deviceFactory

        function onSignalRetToSystemConfig(ipport, result) {
            root.report.note(ipport, result);
            root.resulted(ipport, result);
        }
    }
}
