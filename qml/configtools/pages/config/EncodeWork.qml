// Reads and writes the encode settings of the session's device.
import QtQuick
import configtools

Item {
    id: root

    required property var session  // a ConfigSession
    required property var deviceFactory
    property bool read: false  // the form shows the current device
    property int result: 0     // of the last read: 0, a constant below, or an error of the device library
    readonly property int configurationUnreadable: 1
    readonly property int abilitiesUnknown: 10
    readonly property bool failed: isFailure(result)
    property string unsavedItems  // unsaved settings of the last save, one per line, or its error
    readonly property alias form: encodeForm
    readonly property var subStream: encodeForm.subStream
    readonly property int unsaved: read ? encodeForm.changedCount : 0
    readonly property bool copyable: read && !failed && encodeForm.complete

    function isFailure(result) {
        return result !== 0 && result !== configurationUnreadable && result !== abilitiesUnknown;
    }

    /// Clears the settings and unsaved changes. They are read again when the tab is next shown.
    function clear() {
        read = false;
        unsavedItems = "";
        result = 0;
    }

    /// Reads the settings. Logs in again first if the login was lost.
    function load() {
        if (!session.loggedIn) {
            session.tryAgain();
            return;
        }
        unsavedItems = "";
        session.work.run(qsTr("正在读取编码配置…"), () => session.work.readEncoding(), () => {
            encodeForm.read();
            read = true;
        });
    }

    /// `key` is "curChannel" or "curStreamType".
    function choose(key, index) {
        unsavedItems = "";
        session.work.run(qsTr("正在读取编码配置…"), () => session.work.chooseEncoding(key, index), () => read = true);
    }

    function set(key, value) {
        unsavedItems = "";
        // Only this setting is written immediately.
        if (key === "subCurResolution")
            session.work.write(qsTr("正在写入辅码流分辨率…"), () => session.work.writeEncodeValue(key, value),
                               () => encodeForm.takeSaved());
        else
            encodeForm.set(key, value);
        // Both streams share the compression; only its profile is separate.
        const mode = subStream.encodeMode;
        if (key === "subCurEncodeMode" && mode.choices[mode.index] !== value)
            session.notify(qsTr("设备的编码模式由主码流决定：主码流已改为 %1").arg(value), OVToast.Information,
                         session.longDuration);
    }

    function save() {
        unsavedItems = "";
        session.work.write(qsTr("正在保存编码配置…"), () => session.work.saveEncoding(), () => {
            if (unsavedItems === "")
                session.work.run(qsTr("正在读取编码配置…"), () => session.work.readEncodeChannel(), null);
        });
    }

    visible: false

    EncodeForm {
        id: encodeForm
        deviceFactory: root.deviceFactory
    }

    Connections {
        enabled: root.session.busy && root.session.encodeShown  // other pages send requests, too
        target: root.deviceFactory

        function onSignalGetDeviceCapRet(result) {
            const failure = root.isFailure(result);
            // After a failed write the form stays, so that unsaved changes remain accessible.
            if (!failure || !root.session.writing)
                root.result = result;
            if (failure && !root.session.writing)
                root.session.notify(qsTr("读取配置失败：%1").arg(encodeForm.failureName(result)), OVToast.Error,
                                  root.session.longDuration);
        }
        function onSignalChangeEncodeChannel() {
            encodeForm.read();
        }
        function onSignalConfirmEncodeConfig(unsaved) {
            if (unsaved === "") {
                root.session.notify(qsTr("保存成功"), OVToast.Success, root.session.shortDuration);
            } else {
                encodeForm.takeSaved();
                if (root.session.lost && encodeForm.taken)  // a later loss of the connection is reported after this
                    root.session.regain();
                root.unsavedItems = unsaved;
                root.session.notify(unsaved + qsTr("保存失败"), OVToast.Error, root.session.longDuration);
            }
        }
    }
}
