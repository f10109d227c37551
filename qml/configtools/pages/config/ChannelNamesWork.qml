// Reads and writes the channel names of the session's device.
import QtQuick
import configtools

Item {
    id: root

    required property var session  // a ConfigSession
    required property var deviceFactory
    property bool read: false  // the form shows the current device
    property bool arriving: false  // the device was just chosen: its first name gets the keyboard focus
    property var saved: null   // result of a save that is not reported yet
    readonly property alias form: nameForm
    readonly property alias running: nameForm.saving
    readonly property alias progress: nameForm.savingProgress
    readonly property string current: running ? qsTr("通道 %1").arg(nameForm.savingRow + 1) : ""
    readonly property int unsaved: read ? nameForm.changedCount : 0
    signal rowWanted(int row)  // a row has an error
    signal allSaved

    function clear() {
        nameForm.cancelSaving();
        read = false;
    }

    /// Stops the save after the name that is being written.
    function stop() {
        nameForm.stopSaving();
    }

    /// Reads the names. Logs in again first if the login was lost.
    function load() {
        if (!session.loggedIn) {
            session.tryAgain();
            return;
        }
        session.work.run(qsTr("正在读取通道名称…"), () => session.work.readNames(), response => {
            nameForm.load(response.names, response.connected);
            read = session.loggedIn;
        });
    }

    /// Writes the changed names one by one. Errors are shown in their rows.
    function save() {
        const faulty = nameForm.firstFaulty();
        if (faulty >= 0) {
            rowWanted(faulty);
            return;
        }
        nameForm.save();
    }

    function write(row, name) {
        const device = session.device;
        session.work.run("", () => session.work.writeName(row, name), response => {
            nameForm.takeWritten(row, response.result, response.name);
            if (response.result === 0 && typeof response.name === "string")
                ChannelRenames.renamed(device, row, response.name);
        });
    }

    function endSaving(rows, written, failedRow) {
        saved = {rows: rows, written: written, failedRow: failedRow};
        deviceFactory.setConfigData("dh", "channelNamesSaved", true);
        if (saved !== null)
            notifySaved();  // the session of the save has ended, so its signal does not arrive
        session.work.runPostponed();
    }

    function notifySaved() {
        const {rows, written, failedRow} = saved;
        saved = null;
        if (written > 0)
            session.image.clear();  // it shows the channel name, too
        const left = rows - written;
        if (left === 0) {
            session.notify(qsTr("%n 个通道名称已保存", "", written), OVToast.Success, session.shortDuration);
            allSaved();
            return;
        }
        const parts = Array.from([written > 0 ? qsTr("%n 个通道名称已保存", "", written) : "",
                                  qsTr("%n 个通道名称未保存", "", left)]).filter(part => part !== "");
        session.notify(parts.join(qsTr("，")), OVToast.Error, session.longDuration);
        if (failedRow >= 0)
            rowWanted(failedRow);
    }

    visible: false

    Connections {
        target: root.deviceFactory
        enabled: root.saved !== null  // otherwise the image page has written a name

        function onSignalSetChannelNameFinished() {
            root.notifySaved();
        }
    }
    ChannelNameForm {
        id: nameForm
        onSaved: (rows, written, failedRow) => root.endSaving(rows, written, failedRow)
        onWriteRequested: (row, name) => root.write(row, name)
    }
}
