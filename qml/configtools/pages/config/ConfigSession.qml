// The session of the configuration page: login, and background reading and writing of settings. One operation runs at a
// time.
import QtQuick
import configtools

Item {
    id: root

    required property var deviceFactory
    property bool shown: true        // the page is visible: a failed login may ask for an account
    property int tab: 0              // current tab: 0 encode settings, 1 image, 2 channel names
    readonly property bool encodeShown: tab === 0
    readonly property bool imageShown: tab === 1
    readonly property bool namesShown: tab === 2
    property string device           // address and port; "" for none
    property string name
    property string model
    property string type
    property bool loggedIn: false
    property int loginResult: 0
    property bool taken: false       // the live view has logged in to another device
    property bool lost: false        // the device no longer responds
    property bool upgrading: false   // a firmware upgrade runs: no settings can be written
    property string failure          // error of the login
    readonly property alias work: sessionWork
    readonly property alias busy: sessionWork.busy
    readonly property alias busyText: sessionWork.text
    readonly property bool writing: sessionWork.writing || namesWork.running
    readonly property alias encoding: encodeWork
    readonly property alias image: imageWork
    readonly property alias names: namesWork
    readonly property int unsaved: encodeWork.unsaved + namesWork.unsaved
    signal renewed                   // the settings must be read again
    signal notify(string message, int severity, int duration)

    readonly property int shortDuration: 3000
    readonly property int longDuration: 5000

    /// Logs in to a device. Cancels a running login or read.
    function open(ipport) {
        const row = deviceFactory.getDeviceInfo("dh", ipport);
        device = ipport;
        name = row.name ?? "";
        model = row.model ?? "";
        type = row.type ?? "";
        noteUpgrade();
        const known = LoginMemory.accountFor(ipport, deviceFactory);
        login(known.user, known.password, known.isForAll);
    }

    function noteUpgrade() {
        const row = device === "" ? {} : deviceFactory.getDeviceInfo("dh", device);
        upgrading = UpgradeTools.isRunning(row.upgraderes ?? UpgradeTools.None);
    }

    /// Clears the settings that were read, with unsaved changes.
    function clear() {
        encodeWork.clear();
        imageWork.clear();
        namesWork.clear();
    }

    /// With `keeps`, a successful account becomes the account of the row.
    function login(account, password, keeps) {
        loggedIn = taken = lost = false;
        failure = "";
        clear();
        work.run(qsTr("正在登录…"), () => work.login(device, account, password), result => {
            loginResult = result;
            LoginMemory.note(device, result);
            loggedIn = result === 0;
            failure = loggedIn ? "" : LoginMemory.failureText(result, device, deviceFactory);
            if (loggedIn && keeps)
                keep(account, password);
            if (loggedIn)
                readShown();
            else if (canLoginAgain() && shown)
                askAgain(account);
        });
    }

    function keep(account, password) {
        const mac = deviceFactory.getDeviceInfo("dh", device).mac ?? "";
        deviceFactory.updataDeviceInfo("dh", "username", account, mac, device);
        deviceFactory.updataDeviceInfo("dh", "password", password, mac, device);
    }

    /// Called when the device did not respond. After a restart it no longer accepts the login.
    function lose() {
        const networkFailure = 5;
        loginResult = networkFailure;
        failure = LoginMemory.failureText(networkFailure, device, deviceFactory);
        lost = true;
        loggedIn = false;
    }

    /// Called when the device responded in the same login.
    function regain() {
        lost = false;
        loggedIn = true;
    }

    /// Whether another account or password may help: unknown account, wrong password, or account logged in elsewhere.
    function canLoginAgain() {
        return loginResult === 1 || loginResult === 2 || loginResult === 4;
    }

    function askAgain(account) {
        const row = deviceFactory.getDeviceInfo("dh", device);
        relogin.instance().ask(row.mac ?? "", device, account, loginResult);
    }

    function tryAgain() {
        if (canLoginAgain() && !taken)
            askAgain(LoginMemory.accountFor(device, deviceFactory).user);
        else
            open(device);
    }

    /// Reads the settings of the current tab unless they were read already.
    function readShown() {
        const shown = [encodeWork, imageWork, namesWork][tab];
        if (loggedIn && !busy && !shown.read)
            shown.load();
    }

    /// The live view has logged in again. The running operation belonged to the earlier login.
    function noteOtherLogin() {
        const isChangeLost = unsaved > 0 || writing;
        lost = false;
        clear();
        if (isChangeLost)
            notify(qsTr("设备已重新登录，尚未保存的修改已丢失"), OVToast.Error, longDuration);
        taken = deviceFactory.getConfigData("dh", "sessionDevice") !== device;
        loggedIn = !taken;
        work.abandon();
        renewed();
    }

    visible: false
    onTabChanged: readShown()

    ConfigWork {
        id: sessionWork
        deviceFactory: root.deviceFactory
        savingNames: namesWork.running
        onOtherLogin: if (root.loggedIn || root.lost || root.busy) root.noteOtherLogin()
    }
    EncodeWork {
        id: encodeWork
        deviceFactory: root.deviceFactory
        session: root
    }
    ImageWork {
        id: imageWork
        deviceFactory: root.deviceFactory
        session: root
    }
    ChannelNamesWork {
        id: namesWork
        deviceFactory: root.deviceFactory
        session: root
    }

    Connections {
        target: root.deviceFactory

        function onSignalAddSingleDeviceToTable() {
            root.noteUpgrade();
        }
    }
    Connections {
        enabled: root.busy || namesWork.running  // other pages send requests, too
        target: root.deviceFactory

        function onSignalGetDeviceCapRet(result) {
            if (result === encodeWork.configurationUnreadable)
                root.notify(qsTr("获取设备配置失败"), OVToast.Error, root.shortDuration);
            else if (result === encodeWork.abilitiesUnknown)
                root.notify(qsTr("获取设备能力失败"), OVToast.Error, root.shortDuration);
            else if (encodeWork.form.isDeviceAway(result))
                root.lose();
            else if (root.lost && result === 0)
                root.regain();
        }
    }

    // qmllint disable unqualified
    OVOnDemand {
        id: relogin
        visible: false
        sourceComponent: ReloginDialog {
            deviceFactory: root.deviceFactory
            onResponded: (account, password) => {
                if (account === "" && password === "")
                    return;
                root.deviceFactory.updataDeviceInfo("dh", "username", account, mac, ipport);
                root.login(account, password);
            }
        }
    }
    // qmllint enable unqualified
}
