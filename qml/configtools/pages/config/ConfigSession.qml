// The device whose configuration is shown: its login, and every reading and writing of it. Each of these holds the
// window up for as long as the device takes, so the page paints what is being done before it begins.
import QtQuick
import configtools

Item {
    id: root

    required property var deviceFactory
    required property var localConfig
    property bool imageShown: false   // the image tab is in front, else the encode tab
    property string device            // "" while none is chosen
    property string name
    property string model
    property string type
    property bool loggedIn: false
    property int loginResult: 0
    property string failure           // why there was no login
    property string refusedItems      // of the last saving, a line for each
    property bool encodeRead: false   // what is shown is this device's
    property bool imageRead: false
    property int encodeResult: 0      // of the last reading: 0, or one of the following, or an error of the device
    readonly property int configurationUnreadable: 1
    readonly property int abilitiesUnknown: 10
    readonly property bool encodeFailed: ![0, configurationUnreadable, abilitiesUnknown].includes(encodeResult)
    property string busyText
    property bool writeRefused: false
    readonly property bool busy: busyText !== ""
    readonly property alias encode: encodeForm
    readonly property alias image: cameraForm
    readonly property int unsaved: encodeRead ? encodeForm.changedCount : 0
    signal said(string message, int kind, int stay)

    readonly property int shortStay: 3000
    readonly property int longStay: 5000

    /// Does `job` once the page shows `text`. A job may end with asking for the next one.
    function work(text, job) {
        busyText = text;
        hold.open();
        paint.run(() => {
            job();
            if (paint.work !== null)
                return;
            busyText = "";
            hold.close();
        });
    }

    function open(ipport) {
        const row = deviceFactory.getDeviceInfo("dh", ipport);
        encodeResult = 0;
        device = ipport;
        name = row.name ?? "";
        model = row.model ?? "";
        type = row.type ?? "";
        // A device that was found has no account of its own: the search settings' one is tried.
        login(row.username || localConfig.getSearchConfigUsrename(),
              row.password || localConfig.getSearchConfigPass());
    }

    function login(account, password) {
        loggedIn = false;
        encodeRead = false;
        imageRead = false;
        failure = "";
        refusedItems = "";
        work(qsTr("正在登录…"), () => {
            loginResult = deviceFactory.findAndLoginDevice("dh", device, account, password);
            loggedIn = loginResult === 0;
            if (loggedIn) {
                readShown();
                return;
            }
            failure = deviceFactory.getErrorName(loginResult);
            if (canLoginAgain())
                askAgain(account);
        });
    }

    /// Whether another account or password may help.
    function canLoginAgain() {
        const noSuchAccount = 1;
        const wrongPassword = 2;
        const alreadyLoggedIn = 4;
        return [noSuchAccount, wrongPassword, alreadyLoggedIn].includes(loginResult);
    }

    function askAgain(account) {
        const row = deviceFactory.getDeviceInfo("dh", device);
        relogin.wanted().ask(row.mac ?? "", device, account);
    }

    function tryAgain() {
        const row = deviceFactory.getDeviceInfo("dh", device);
        if (canLoginAgain())
            askAgain(row.username || localConfig.getSearchConfigUsrename());
        else
            open(device);
    }

    function readShown() {
        if (!loggedIn)
            return;
        if (imageShown && !imageRead)
            readImage();
        else if (!imageShown && !encodeRead)
            readEncode();
    }

    function readEncode() {
        refusedItems = "";
        work(qsTr("正在读取编码配置…"), () => {
            deviceFactory.getEncodeCaps("dh");
            encodeForm.read();
            encodeRead = true;
        });
    }

    /// `key` is "curChannel" or "curStreamType".
    function chooseEncode(key, index) {
        refusedItems = "";
        work(qsTr("正在读取编码配置…"), () => {
            deviceFactory.setConfigData("dh", key, index);
            deviceFactory.getEncodeInfo("dh");
            encodeRead = true;
        });
    }

    function setEncode(key, value) {
        refusedItems = "";
        // Only this one goes to the device at once.
        if (key === "subCurResolution")
            work(qsTr("正在写入辅码流分辨率…"), () => encodeForm.set(key, value));
        else
            encodeForm.set(key, value);
        // The compression is one for both streams, and only its profile is each one's own.
        const mode = encodeForm.subStream.encodeMode;
        if (key === "subCurEncodeMode" && mode.choices[mode.index] !== value)
            said(qsTr("设备的编码模式由主码流决定：主码流已改为 %1").arg(value), OVToast.Information, longStay);
    }

    function save() {
        refusedItems = "";
        work(qsTr("正在保存编码配置…"), () => deviceFactory.confirmConfigData("dh"));
    }

    /// What was changed and not saved is lost; it is read anew when it is next shown.
    function discard() {
        encodeRead = false;
        refusedItems = "";
    }

    function readImage() {
        work(qsTr("正在读取图像配置…"), () => {
            deviceFactory.getCameraConfig("dh");
            deviceFactory.getVideoInByChangeChannel("dh");
            imageRead = true;
        });
    }

    function chooseImageChannel(index) {
        deviceFactory.setConfigData("dh", "curVideoChannel", index);
        readImage();
    }

    function chooseSwitchMode(index) {
        work(qsTr("正在读取图像配置…"), () => {
            deviceFactory.setConfigData("dh", "curSwitchMode", index);
            deviceFactory.getVideoIn("dh");
        });
    }

    /// Writes values of a group, each as [sub-key, value].
    function setImage(key, values) {
        work(qsTr("正在写入图像配置…"), () => {
            writeRefused = false;
            for (const [subKey, value] of values)
                deviceFactory.setConfigData("dh", key, value, subKey);
            const refused = writeRefused;
            cameraForm.read();
            if (refused)
                said(qsTr("设备没有接受修改，显示的是设备现有的值"), OVToast.Error, longStay);
        });
    }

    visible: false
    onImageShownChanged: readShown()

    EncodeForm {
        id: encodeForm
        deviceFactory: root.deviceFactory
    }
    CameraForm {
        id: cameraForm
        deviceFactory: root.deviceFactory
    }

    Connections {
        enabled: root.busy  // other pages ask devices, too
        target: root.deviceFactory

        function onSignalGetDeviceCapRet(result) {
            if (!root.imageShown)
                root.encodeResult = result;
            if (result === root.configurationUnreadable)
                root.said(qsTr("获取设备配置失败"), OVToast.Error, root.shortStay);
            else if (result === root.abilitiesUnknown)
                root.said(qsTr("获取设备能力失败"), OVToast.Error, root.shortStay);
            else if (result !== 0)
                root.said(qsTr("设备没有应答，读取配置失败"), OVToast.Error, root.longStay);
        }
        function onSignalChangeEncodeChannel() {
            encodeForm.read();
        }
        function onSignalConfirmEncodeConfig(refused) {
            if (refused === "") {
                root.said(qsTr("保存成功"), OVToast.Success, root.shortStay);
                root.work(qsTr("正在读取编码配置…"), () => root.deviceFactory.getEncodeInfo("dh"));
            } else {
                root.refusedItems = refused;
                root.said(refused + qsTr("保存失败"), OVToast.Error, root.longStay);
            }
        }
        function onSignalChangeVideoChannel() {
            cameraForm.read();
        }
        function onSignalChangeVideoType() {
            root.writeRefused = true;
            cameraForm.read();
        }
    }

    OVAfterPaint {
        id: paint
    }
    OVInputHold {
        id: hold
    }

    // qmllint disable unqualified
    OVOnDemand {
        id: relogin
        visible: false
        sourceComponent: ReloginDialog {
            deviceFactory: root.deviceFactory
            onAnswered: (account, password) => {
                if (account === "" && password === "")
                    return;
                root.deviceFactory.updataDeviceInfo("dh", "username", account, mac, ipport);
                root.login(account, password);
            }
            onRefused: message => root.said(message, OVToast.Error, root.longStay)
        }
    }
    // qmllint enable unqualified
}
