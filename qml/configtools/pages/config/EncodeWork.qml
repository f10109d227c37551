// Reads and writes the encode settings of the session's device. Changes stay in `form` until save(), except for the
// resolution of the sub stream, which is written immediately.
import QtQuick
import configtools

Item {
    id: root

    required property var session  // a ConfigSession: the login to the device; runs the operations
    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    property bool read: false  // the form has the values of the current device, or the read has failed, see `failed`
    property int result: 0     // of the last read: 0, a constant below, or an error of the network library
    /// The device's values are not understood; the page may be incomplete.
    readonly property int configurationUnreadable: 1
    readonly property int abilitiesUnknown: 10  // the device did not report the possible values; choices may be empty
    readonly property bool failed: isFailure(result)  // the last read has failed: the page shows no values
    /// Names of the settings that the last save did not write, one per line, or the error of the save. "" after
    /// success, and from the next change, read or save.
    property string unsavedItems
    readonly property alias form: encodeForm
    readonly property var subStream: encodeForm.subStream  // see EncodeStream.stream; also "exists" (bool)
    readonly property int unsaved: read ? encodeForm.changedCount : 0  // number of changed values that are not written
    /// The settings were read completely and can be copied to other devices.
    readonly property bool copyable: read && !failed && encodeForm.complete

    /// Whether a result means that nothing was read.
    function isFailure(result) {
        return result !== 0 && result !== configurationUnreadable && result !== abilitiesUnknown;
    }

    /// Clears the settings and unsaved changes. They are read again when the tab is next shown.
    function clear() {
        read = false;
        unsavedItems = "";
        result = 0;
    }

    /// Reads the settings of the current channel. Unsaved changes are lost: the page asks before. If the login was
    /// lost, logs in again instead; the settings are read after that.
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

    /// Selects a channel or the type of the main stream and reads it. Unsaved changes are lost: the page asks before.
    /// `key` is "curChannel" or "curStreamType", `index` its number from 0.
    function choose(key, index) {
        unsavedItems = "";
        session.work.run(qsTr("正在读取编码配置…"), () => session.work.chooseEncoding(key, index), () => read = true);
    }

    /// Sets a value in the form, by the "key" of the setting. "subCurResolution", the resolution of the sub stream, is
    /// written to the device immediately.
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

    /// Writes all changed values. If the device has accepted all of them, reads the channel again; otherwise the others
    /// stay unsaved and are notified.
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
