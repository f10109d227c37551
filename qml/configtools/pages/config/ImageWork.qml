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
        session.work(qsTr("正在读取图像配置…"), () => {
            deviceFactory.getCameraConfig("dh");
            if (session.loggedIn)  // else the values would only be waited for again
                deviceFactory.getVideoInByChangeChannel("dh");
            else
                cameraForm.read();
            read = session.loggedIn;
            if (read)
                connectedChannels = deviceFactory.getConfigData("dh", "connectedChannels");
        });
    }

    function chooseChannel(index) {
        deviceFactory.setConfigData("dh", "curVideoChannel", index);
        load();
    }

    function chooseMode(index) {
        session.work(qsTr("正在读取图像配置…"), () => {
            deviceFactory.setConfigData("dh", "curSwitchMode", index);
            deviceFactory.getVideoIn("dh");
            read = session.loggedIn;
        });
    }

    /// Writes values of a group, each as [sub-key, value].
    function set(key, values) {
        session.work(qsTr("正在写入图像配置…"), () => {
            refusal = 0;
            for (const [subKey, value] of values) {
                if (session.loggedIn)
                    deviceFactory.setConfigData("dh", key, value, subKey);
            }
            if (key === "curChannelName")
                session.names.forget();
            cameraForm.read();
            read = session.loggedIn;
            if (!session.loggedIn)
                session.said(qsTr("设备没有应答，修改可能没有写入"), OVToast.Error, session.longStay);
            else if (refusal !== 0)
                session.said(qsTr("没有修改：%1。显示的是设备现有的值")
                             .arg(session.encoding.form.failureName(refusal)), OVToast.Error, session.longStay);
        }, true);
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
