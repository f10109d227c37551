// The reading and writing of the names of all channels of the session's device.
import QtQuick
import configtools

Item {
    id: root

    required property var session  // a ConfigSession
    required property var deviceFactory
    property bool read: false  // what the form shows is this device's
    property bool arriving: false  // the device has just been chosen: its first name gets the keyboard
    property var saved: null   // how a saving ended that is still to be told of
    readonly property alias form: nameForm
    readonly property alias running: nameForm.saving
    readonly property alias progress: nameForm.savingProgress
    readonly property string current: running ? qsTr("通道 %1").arg(nameForm.savingRow + 1) : ""
    readonly property int unsaved: read ? nameForm.changedCount : 0
    signal rowWanted(int row)  // something is wrong in that row
    signal allSaved

    function forget() {
        nameForm.dropSaving();
        read = false;
    }

    /// The saving ends with the name that is being written.
    function stop() {
        nameForm.stopSaving();
    }

    /// In a login that is lost it begins with another one.
    function load() {
        if (!session.loggedIn) {
            session.tryAgain();
            return;
        }
        session.work.run(qsTr("正在读取通道名称…"), () => session.work.readNames(), told => {
            nameForm.load(told.names, told.connected);
            read = session.loggedIn;
        });
    }

    /// Writes the changed names, one after another. What is wrong with one stands in its row.
    function save() {
        const faulty = nameForm.firstFaulty();
        if (faulty >= 0) {
            rowWanted(faulty);
            return;
        }
        nameForm.save();
    }

    function write(row, name) {
        session.work.run("", () => session.work.writeName(row, name),
                         told => nameForm.takeWritten(row, told.result, told.name));
    }

    function endSaving(rows, written, failedRow) {
        saved = {rows: rows, written: written, failedRow: failedRow};
        deviceFactory.setConfigData("dh", "channelNamesSaved", true);
        if (saved !== null)
            tell();  // the session of the saving has ended, and its signal does not come
        session.work.settle();
    }

    function tell() {
        const {rows, written, failedRow} = saved;
        saved = null;
        if (written > 0)
            session.image.forget();  // it shows the name of its channel, too
        const left = rows - written;
        if (left === 0) {
            session.said(qsTr("%n 个通道名称已保存", "", written), OVToast.Success, session.shortStay);
            allSaved();
            return;
        }
        const parts = Array.from([written > 0 ? qsTr("%n 个通道名称已保存", "", written) : "",
                                  qsTr("%n 个通道名称未保存", "", left)]).filter(part => part !== "");
        session.said(parts.join(qsTr("，")), OVToast.Error, session.longStay);
        if (failedRow >= 0)
            rowWanted(failedRow);
    }

    visible: false

    Connections {
        target: root.deviceFactory
        enabled: root.saved !== null  // else the image page has written a name

        function onSignalSetChannelNameFinished() {
            root.tell();
        }
    }
    ChannelNameForm {
        id: nameForm
        onSaved: (rows, written, failedRow) => root.endSaving(rows, written, failedRow)
        onWriteRequested: (row, name) => root.write(row, name)
    }
}
