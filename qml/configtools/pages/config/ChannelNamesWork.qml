// The reading and writing of the names of all channels of the session's device.
import QtQuick
import configtools

Item {
    id: root

    required property var session  // a ConfigSession
    required property var deviceFactory
    property bool read: false  // what the form shows is this device's
    property var saving: []    // rows of the form that are being written
    property int written: 0    // of them
    readonly property alias form: nameForm
    readonly property alias running: batch.running
    readonly property alias progress: batch.progress
    readonly property alias current: batch.current
    readonly property int unsaved: read ? nameForm.changedCount : 0
    signal rowWanted(int row)  // something is wrong in that row

    function forget() {
        read = false;
    }

    /// In a login that is lost it begins with another one.
    function load() {
        if (!session.loggedIn) {
            session.tryAgain();
            return;
        }
        session.work(qsTr("正在读取通道名称…"), () => {
            nameForm.read();
            read = session.loggedIn;
        });
    }

    /// Writes the changed names, one after another.
    function save() {
        const faulty = nameForm.firstFaulty();
        if (faulty >= 0) {
            session.said(qsTr("通道 %1 的名称不能保存，请先修改").arg(faulty + 1), OVToast.Error, session.shortStay);
            rowWanted(faulty);
            return;
        }
        const rows = Array.from(nameForm.changedRows());
        saving = rows;
        written = 0;
        batch.start(rows.length, i => write(rows[i]), i => qsTr("通道 %1").arg(rows[i] + 1), endSaving);
    }

    function endSaving() {
        if (session.overtaken)
            tell();  // of the saving in the login before, nothing more is heard
        else
            nameForm.endSaving();
        session.settle();
    }

    function write(row) {
        if (session.overtaken) {
            batch.stopping = true;
            return;
        }
        const trouble = nameForm.write(row);
        if (trouble === ChannelNameForm.None || trouble === ChannelNameForm.Different)
            ++written;
        else if (trouble === ChannelNameForm.Unanswered || trouble === ChannelNameForm.Upgrading)
            batch.stopping = true;  // the others would only wait, or end the same
    }

    function tell() {
        const rows = saving;
        saving = [];
        if (written > 0)
            session.image.forget();  // it shows the name of its channel, too
        const left = rows.length - written;
        if (left === 0) {
            session.said(qsTr("%n 个通道名称已保存", "", written), OVToast.Success, session.shortStay);
            return;
        }
        const parts = Array.from([written > 0 ? qsTr("%n 个通道名称已保存", "", written) : "",
                                  qsTr("%n 个通道名称未保存", "", left)]).filter(part => part !== "");
        session.said(parts.join(qsTr("，")), OVToast.Error, session.longStay);
        const failed = rows.find(row => nameForm.get(row).trouble !== ChannelNameForm.None);
        if (failed !== undefined)
            rowWanted(failed);
    }

    visible: false

    Connections {
        target: root.deviceFactory
        enabled: root.saving.length > 0  // else the image page has written a name

        function onSignalSetChannelNameFinished() {
            root.tell();
        }
    }
    ChannelNameForm {
        id: nameForm
        deviceFactory: root.deviceFactory
    }
    OVBatch {
        id: batch
    }
}
