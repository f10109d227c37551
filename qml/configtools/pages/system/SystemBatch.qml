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
    property int succeeded: 0
    property int failed: 0
    property var waiting: []  // devices whose old password was right
    readonly property string outcome: {
        if (running || devices.length === 0)
            return "";
        const parts = [];
        if (succeeded > 0)
            parts.push(qsTr("%n 台设备成功", "", succeeded));
        if (waiting.length > 0)
            parts.push(qsTr("%n 台设备等待新密码", "", waiting.length));
        if (failed > 0)
            parts.push(qsTr("%n 台设备失败", "", failed));
        if (done < devices.length)
            parts.push(qsTr("%n 台设备未执行", "", devices.length - done));
        return title + qsTr("：") + parts.join(qsTr("，"));
    }
    readonly property string device: running ? devices[done] ?? "" : ""
    signal resulted(string ipport, int result)
    signal finished

    /// `dataOf` makes the data of the command for each device anew: a time is that of its sending.
    function run(command, title, devices, dataOf) {
        root.command = command;
        root.title = title;
        root.devices = devices;
        root.dataOf = dataOf;
        done = succeeded = failed = 0;
        waiting = [];
        stopping = false;
        running = true;
        next.start();
    }

    /// Leaves out what follows the device that is being asked.
    function stop() {
        stopping = true;
    }

    function step() {
        if (done < devices.length && !stopping) {
            deviceFactory.systemConfig("dh", command, dataOf(), [devices[done]]);
            ++done;
            next.start();
        } else {
            running = false;
            finished();
        }
    }

    readonly property Timer next: Timer {
        interval: Theme.frame
        onTriggered: root.step()
    }

    readonly property Connections results: Connections {
        target: root.deviceFactory

        function onSignalRetToSystemConfig(ipport, result) {
            if (result === 0)
                ++root.succeeded;
            else if (result === -1)
                root.waiting.push(ipport);
            else
                ++root.failed;
            root.resulted(ipport, result);
        }
    }
}
