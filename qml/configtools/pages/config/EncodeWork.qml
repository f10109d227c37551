// The reading and writing of the encode settings of the session's device.
import QtQuick
import configtools

Item {
    id: root

    required property var session  // a ConfigSession
    required property var deviceFactory
    property bool read: false  // what the form shows is this device's
    property int result: 0     // of the last reading: 0, or one of the following, or an error of the device
    readonly property int configurationUnreadable: 1
    readonly property int abilitiesUnknown: 10
    readonly property bool failed: isFailure(result)
    property string unsavedItems  // of the last saving, a line for each, or the reason why nothing was saved
    readonly property alias form: encodeForm
    readonly property var subStream: encodeForm.subStream
    readonly property int unsaved: read ? encodeForm.changedCount : 0
    readonly property bool copyable: read && !failed && encodeForm.complete

    function isFailure(result) {
        return result !== 0 && result !== configurationUnreadable && result !== abilitiesUnknown;
    }

    /// Clears the device. Unsaved changes are lost. The settings are read again when the device is next shown.
    function forget() {
        read = false;
        unsavedItems = "";
        result = 0;
    }

    /// In a login that is lost it begins with another one.
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
        // Only this one goes to the device at once.
        if (key === "subCurResolution")
            session.work.write(qsTr("正在写入辅码流分辨率…"), () => session.work.writeEncodeValue(key, value),
                               () => encodeForm.takeSaved());
        else
            encodeForm.set(key, value);
        // The compression is one for both streams, and only its profile is each one's own.
        const mode = subStream.encodeMode;
        if (key === "subCurEncodeMode" && mode.choices[mode.index] !== value)
            session.said(qsTr("设备的编码模式由主码流决定：主码流已改为 %1").arg(value), OVToast.Information,
                         session.longStay);
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
        enabled: root.session.busy && root.session.encodeShown  // other pages ask devices, too
        target: root.deviceFactory

        function onSignalGetDeviceCapRet(result) {
            const failure = root.isFailure(result);
            // After a write the form stays: what was changed and not saved would be out of reach.
            if (!failure || !root.session.writing)
                root.result = result;
            if (failure && !root.session.writing)
                root.session.said(qsTr("读取配置失败：%1").arg(encodeForm.failureName(result)), OVToast.Error,
                                  root.session.longStay);
        }
        function onSignalChangeEncodeChannel() {
            encodeForm.read();
        }
        function onSignalConfirmEncodeConfig(unsaved) {
            if (unsaved === "") {
                root.session.said(qsTr("保存成功"), OVToast.Success, root.session.shortStay);
            } else {
                encodeForm.takeSaved();
                if (root.session.lost && encodeForm.taken)  // that it has gone again meanwhile is told after this
                    root.session.regain();
                root.unsavedItems = unsaved;
                root.session.said(unsaved + qsTr("保存失败"), OVToast.Error, root.session.longStay);
            }
        }
    }
}
