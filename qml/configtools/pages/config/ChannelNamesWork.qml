// The reading and writing of the names of all channels of the session's device.
import QtQuick
import configtools

Item {
    id: root

    required property var session  // a ConfigSession
    required property var deviceFactory
    property bool read: false  // what the form shows is this device's
    property var saved: null   // how a saving ended that is still to be told of
    readonly property alias form: nameForm
    readonly property alias running: nameForm.saving
    readonly property alias progress: nameForm.savingProgress
    readonly property string current: running ? qsTr("通道 %1").arg(nameForm.savingRow + 1) : ""
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
        nameForm.save();
        if (running)
            hold.open();
    }

    function endSaving(rows, written, failedRow) {
        hold.release();
        saved = {rows: rows, written: written, failedRow: failedRow};
        if (session.overtaken)
            tell();  // the session of the saving has ended, and its signal does not come
        else
            nameForm.reportSaving();
        session.settle();
    }

    function tell() {
        const {rows, written, failedRow} = saved;
        saved = null;
        if (written > 0)
            session.image.forget();  // it shows the name of its channel, too
        const left = rows - written;
        if (left === 0) {
            session.said(qsTr("%n 个通道名称已保存", "", written), OVToast.Success, session.shortStay);
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
        deviceFactory: root.deviceFactory
        onSaved: (rows, written, failedRow) => root.endSaving(rows, written, failedRow)
    }
    Connections {
        target: root.session

        function onOvertakenChanged() {
            if (root.session.overtaken)
                nameForm.stopSaving();
        }
    }
    OVInputHold {
        id: hold
        onEscapePressed: nameForm.stopSaving()
    }
}
