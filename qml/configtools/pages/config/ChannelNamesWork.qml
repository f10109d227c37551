// Reads and writes the channel names of the session's device. The names are edited in `form`; a save writes the changed
// ones, one request after another.
import QtQuick
import configtools

Item {
    id: root

    required property var session  // a ConfigSession: the login to the device; runs the operations
    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    property bool read: false  // the form has the names of the current device
    property bool arriving: false  // the device was just chosen: its first name gets the keyboard focus
    /// Result of the ended save that is not notified yet: "rows" (names to write), "written" and "failedRow" (-1 for
    /// none). Null for none.
    property var saved: null
    readonly property alias form: nameForm
    readonly property alias running: nameForm.saving  // a save runs
    readonly property alias progress: nameForm.savingProgress  // of the save, 0 to 1
    /// Channel that is being written, as text; "" for none.
    readonly property string current: running ? qsTr("通道 %1").arg(nameForm.savingRow + 1) : ""
    readonly property int unsaved: read ? nameForm.changedCount : 0  // number of changed names
    signal rowWanted(int row)  // this row has an error and should get the keyboard focus
    signal allSaved  // a save has written all changed names
    signal notAllSaved  // a save has ended with unsaved names: it has failed or was stopped

    /// Drops unsaved names and ends a running save; the request that was sent may still take effect. The names are read
    /// again when the tab is next shown.
    function clear() {
        nameForm.cancelSaving();
        read = false;
    }

    /// Stops the save after the name that is being written.
    function stop() {
        nameForm.stopSaving();
    }

    /// Reads the names. Unsaved names are lost: the page asks before. If the login was lost, logs in again instead; the
    /// names are read after that.
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

    /// Writes the changed names one by one. Errors are shown in their rows. If a name is empty or too long, nothing is
    /// written and its row is reported.
    function save() {
        const faulty = nameForm.firstFaulty();
        if (faulty >= 0) {
            rowWanted(faulty);
            return;
        }
        nameForm.save();
    }

    /// Writes the name of one channel in the background; the form gets the result. `row` is the channel number from 0.
    function write(row, name) {
        const device = session.device;
        session.work.run("", () => session.work.writeName(row, name), response => {
            nameForm.takeWritten(row, response.result, response.name);
            if (response.result === 0 && typeof response.name === "string")
                ChannelRenames.renamed(device, row, response.name);
        });
    }

    /// Called at the end of a save: reports it to the back end, then notifies the user and runs what was postponed.
    function endSaving(rows, written, failedRow) {
        saved = {rows: rows, written: written, failedRow: failedRow};
        deviceFactory.setConfigData("dh", "channelNamesSaved", true);
        if (saved !== null)
            notifySaved();  // the session of the save has ended, so its signal does not arrive
        session.work.runPostponed();
    }

    /// Notifies the numbers of saved and unsaved names.
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
        notAllSaved();
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
