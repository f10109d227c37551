// The device whose configuration is shown: its login, and the reading and writing of it, on another thread. One piece
// of work runs at a time.
import QtQuick
import configtools

Item {
    id: root

    required property var deviceFactory
    property bool shown: true        // its page is in front: questions of a login are asked
    property int tab: 0              // that is in front: the encode settings, the image, the channels' names
    readonly property bool encodeShown: tab === 0
    readonly property bool imageShown: tab === 1
    readonly property bool namesShown: tab === 2
    property string device           // "" while none is chosen
    property string name
    property string model
    property string type
    property bool loggedIn: false
    property int loginResult: 0
    property bool taken: false       // another device is logged in to, since its live picture is watched
    property bool lost: false        // the login was there, but the device no longer answers
    property bool upgrading: false   // the device takes new firmware, and no settings until that has ended
    property string failure          // why there was no login
    readonly property alias work: sessionWork
    readonly property alias busy: sessionWork.busy
    readonly property alias busyText: sessionWork.text
    readonly property bool writing: sessionWork.writing || namesWork.running
    readonly property alias encoding: encodeWork
    readonly property alias image: imageWork
    readonly property alias names: namesWork
    readonly property int unsaved: encodeWork.unsaved + namesWork.unsaved
    signal renewed                   // what was read of the device is forgotten
    signal said(string message, int kind, int stay)

    readonly property int shortStay: 3000
    readonly property int longStay: 5000

    /// Logs in to a device. A login or reading that runs is given up.
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

    /// What was read of the device, with what was changed and not saved.
    function forget() {
        encodeWork.forget();
        imageWork.forget();
        namesWork.forget();
    }

    /// With `keeps`, the account becomes that of the device once it has proved right.
    function login(account, password, keeps) {
        loggedIn = taken = lost = false;
        failure = "";
        forget();
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

    /// The device was asked and did not answer. After it was away, as for a restart, it knows the login no more.
    function lose() {
        const networkFailure = 5;
        loginResult = networkFailure;
        failure = LoginMemory.failureText(networkFailure, device, deviceFactory);
        lost = true;
        loggedIn = false;
    }

    /// It answered in the same login.
    function regain() {
        lost = false;
        loggedIn = true;
    }

    /// Whether another account or password may help: there is no such account, its password is another one, or it is
    /// logged in elsewhere.
    function canLoginAgain() {
        return loginResult === 1 || loginResult === 2 || loginResult === 4;
    }

    function askAgain(account) {
        const row = deviceFactory.getDeviceInfo("dh", device);
        relogin.wanted().ask(row.mac ?? "", device, account, loginResult);
    }

    function tryAgain() {
        if (canLoginAgain() && !taken)
            askAgain(LoginMemory.accountFor(device, deviceFactory).user);
        else
            open(device);
    }

    /// Reads what is in front, unless that was done already.
    function readShown() {
        const shown = [encodeWork, imageWork, namesWork][tab];
        if (loggedIn && !busy && !shown.read)
            shown.load();
    }

    /// The live view uses the same login and has just repeated it. The work that ran belonged to the earlier login.
    function noteOtherLogin() {
        const isChangeLost = unsaved > 0 || writing;
        lost = false;
        forget();
        if (isChangeLost)
            said(qsTr("设备已重新登录，尚未保存的修改已丢失"), OVToast.Error, longStay);
        taken = deviceFactory.getConfigData("dh", "sessionDevice") !== device;
        loggedIn = !taken;
        work.forget();
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
        enabled: root.busy || namesWork.running  // other pages ask devices, too
        target: root.deviceFactory

        function onSignalGetDeviceCapRet(result) {
            if (result === encodeWork.configurationUnreadable)
                root.said(qsTr("获取设备配置失败"), OVToast.Error, root.shortStay);
            else if (result === encodeWork.abilitiesUnknown)
                root.said(qsTr("获取设备能力失败"), OVToast.Error, root.shortStay);
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
            onAnswered: (account, password) => {
                if (account === "" && password === "")
                    return;
                root.deviceFactory.updataDeviceInfo("dh", "username", account, mac, ipport);
                root.login(account, password);
            }
        }
    }
    // qmllint enable unqualified
}
