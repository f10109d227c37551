// Reads and writes the image settings of the session's device. Each change is written immediately, so nothing is
// unsaved.
import QtQuick
import configtools

Item {
    id: root

    required property var session  // a ConfigSession: the login to the device; runs the operations
    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    property bool read: false  // the form has the values of the current device
    /// The last result of CDeviceFactory.signalGetDeviceCapRet() since the last call of set(); 0 for none or a success.
    property int refusal: 0
    property var connectedChannels: []  // list of bool: whether each channel has a camera; [] if unknown
    readonly property alias form: cameraForm

    /// The settings are read again when the tab is next shown.
    function clear() {
        read = false;
    }

    /// Reads the settings of the current channel again.
    function load() {
        chooseChannel(-1);
    }

    /// Selects a channel and reads its settings. `index` counts from 0; -1 for the current channel. After a failure the
    /// form shows the earlier values.
    function chooseChannel(index) {
        session.work.run(qsTr("正在读取图像配置…"), () => session.work.readImage(index), connected => {
            read = session.loggedIn;
            if (read)
                connectedChannels = connected;
            else
                cameraForm.read();
        });
    }

    /// Selects the configuration mode with this index in `form.switchModes` and reads its settings.
    function chooseMode(index) {
        session.work.run(qsTr("正在读取图像配置…"), () => session.work.chooseImageMode(index),
                         () => read = session.loggedIn);
    }

    /// Writes values of the group `key` (see ImageGroup.key) in the background. `values` is an array of pairs [sub-key,
    /// value]. Then the form shows the values that the device has; a refusal or a missing response is notified. Two
    /// keys have no sub-keys: "curChannelName" with [["", name]] renames the channel; "setDefault" with [["", ""]]
    /// restores the default picture settings.
    function set(key, values) {
        refusal = 0;
        session.work.write(qsTr("正在写入图像配置…"), () => session.work.writeImage(key, values), () => {
            if (key === "curChannelName")
                session.names.clear();
            cameraForm.read();
            read = session.loggedIn;
            if (key === "curChannelName" && read)
                ChannelRenames.renamed(session.device, cameraForm.channel, cameraForm.channelName);
            if (!session.loggedIn)
                session.notify(qsTr("设备没有应答，修改可能没有写入"), OVToast.Error, session.longDuration);
            else if (refusal !== 0)
                session.notify(qsTr("没有修改：%1。显示的是设备现有的值")
                             .arg(session.encoding.form.failureName(refusal)), OVToast.Error, session.longDuration);
        });
    }

    visible: false

    CameraForm {
        id: cameraForm
        deviceFactory: root.deviceFactory
    }

    Connections {
        enabled: root.session.busy && root.session.imageShown  // other pages send requests, too
        target: root.deviceFactory

        function onSignalChangeVideoChannel() {
            cameraForm.read();
        }
        function onSignalChangeVideoType() {
            cameraForm.read();
        }
        function onSignalGetDeviceCapRet(result) {
            root.refusal = result;
        }
    }
}
