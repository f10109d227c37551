// The reading and writing of the image settings of the session's device.
import QtQuick
import configtools

Item {
    id: root

    required property var session  // a ConfigSession
    required property var deviceFactory
    property bool read: false  // what the form shows is this device's
    property int refusal: 0  // why the device did not take the last change
    property var connectedChannels: []  // for each channel whether it has a camera
    readonly property alias form: cameraForm

    function forget() {
        read = false;
    }

    function load() {
        chooseChannel(-1);
    }

    /// `index` is -1 for the channel that was chosen before.
    function chooseChannel(index) {
        session.work.run(qsTr("正在读取图像配置…"), () => session.work.readImage(index), connected => {
            read = session.loggedIn;
            if (read)
                connectedChannels = connected;
            else
                cameraForm.read();
        });
    }

    function chooseMode(index) {
        session.work.run(qsTr("正在读取图像配置…"), () => session.work.chooseImageMode(index),
                         () => read = session.loggedIn);
    }

    /// Writes values of a group, each as [sub-key, value].
    function set(key, values) {
        refusal = 0;
        session.work.write(qsTr("正在写入图像配置…"), () => session.work.writeImage(key, values), () => {
            if (key === "curChannelName")
                session.names.forget();
            cameraForm.read();
            read = session.loggedIn;
            if (!session.loggedIn)
                session.said(qsTr("设备没有应答，修改可能没有写入"), OVToast.Error, session.longStay);
            else if (refusal !== 0)
                session.said(qsTr("没有修改：%1。显示的是设备现有的值")
                             .arg(session.encoding.form.failureName(refusal)), OVToast.Error, session.longStay);
        });
    }

    visible: false

    CameraForm {
        id: cameraForm
        deviceFactory: root.deviceFactory
    }

    Connections {
        enabled: root.session.busy && root.session.imageShown  // other pages ask devices, too
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
