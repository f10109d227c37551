// The session of the configuration page with one device: login, and reading and writing of settings in the background.
// One operation runs at a time. The values of the three tabs are in `encoding`, `image` and `names`. The back end keeps
// one such session, which the live window uses, too: its login to another device ends this session (`taken`).
import QtQuick
import configtools

Item {
    id: root

    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    property bool shown: true        // the page is visible; otherwise a failed login does not ask for an account
    property int tab: 0              // current tab: 0 encode settings, 1 image, 2 channel names
    readonly property bool encodeShown: tab === 0
    readonly property bool imageShown: tab === 1
    readonly property bool namesShown: tab === 2
    property string device           // "address:port" of the shown device; "" for none
    // Of the device, as in the device list when it was opened.
    property string name
    property string model
    property string type
    property bool loggedIn: false  // settings can be read; false also while the login runs, if `taken` and if `lost`
    property int loginResult: 0  // of the last login, a LoginResult (0: success); 5 (no response) also after lose()
    property bool taken: false       // the live window has logged in to another device: this session has ended
    property bool lost: false        // the device has stopped responding, or no longer accepts the login
    property bool upgrading: false   // a firmware upgrade runs: no settings can be written
    property string failure          // error text of the last failed login or of lose(); "" from the start of a login
    readonly property alias work: sessionWork  // runs the operations
    readonly property alias busy: sessionWork.busy  // an operation runs whose text is shown; the panel is blocked
    readonly property alias busyText: sessionWork.text
    /// Settings of the device are being changed.
    readonly property bool writing: sessionWork.writing || namesWork.running
    readonly property alias encoding: encodeWork  // encode settings
    readonly property alias image: imageWork  // image settings
    readonly property alias names: namesWork  // channel names
    /// Number of changed encode settings and channel names that are not written.
    readonly property int unsaved: encodeWork.unsaved + namesWork.unsaved
    signal renewed  // the live window has logged in: unless `taken`, the settings of the shown tab must be read again
    signal notify(string message, int severity, int duration)  // shows a toast; severity: of OVToast; duration in ms

    readonly property int shortDuration: 3000  // of messages, ms
    readonly property int longDuration: 5000  // of error messages, ms

    /// Shows a device and logs in to it with the account of LoginMemory.accountFor(). Drops a running operation and
    /// unsaved changes without a question: the page asks before.
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

    /// Reads again whether the firmware of the device is being upgraded.
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

    /// Logs in to `device`, then reads the settings of the shown tab. With `keeps`, an account that the device accepts
    /// becomes the account of its row; otherwise the row is not changed. After a refusal of the account the user is
    /// asked for another one if `shown`.
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

    /// Stores the account in the row of the device, until the next search.
    function keep(account, password) {
        const mac = deviceFactory.getDeviceInfo("dh", device).mac ?? "";
        deviceFactory.updataDeviceInfo("dh", "username", account, mac, device);
        deviceFactory.updataDeviceInfo("dh", "password", password, mac, device);
    }

    /// Called when the device did not respond, or no longer accepts the login, as after a restart. Read values stay on
    /// the page.
    function lose() {
        const networkFailure = 5;
        loginResult = networkFailure;
        failure = LoginMemory.failureText(networkFailure, device, deviceFactory);
        lost = true;
        loggedIn = false;
    }

    /// Called when the device has responded again in the same login.
    function regain() {
        lost = false;
        loggedIn = true;
    }

    /// Whether another account or password may help after the last login: unknown account, wrong password, or account
    /// logged in elsewhere.
    function canLoginAgain() {
        return loginResult === 1 || loginResult === 2 || loginResult === 4;
    }

    /// Asks for another account and logs in with it. `account`: the refused user name.
    function askAgain(account) {
        const row = deviceFactory.getDeviceInfo("dh", device);
        relogin.instance().ask(row.mac ?? "", device, account, loginResult);
    }

    /// Logs in again. Asks for an account if another one may help and the session is not `taken`; otherwise as open().
    function tryAgain() {
        if (canLoginAgain() && !taken)
            askAgain(LoginMemory.accountFor(device, deviceFactory).user);
        else
            open(device);
    }

    /// Reads the settings of the current tab. Does nothing if they were read already, without a login, and while an
    /// operation runs.
    function readShown() {
        const shown = [encodeWork, imageWork, namesWork][tab];
        if (loggedIn && !busy && !shown.read)
            shown.load();
    }

    /// Called when the live window has logged in, to this device (the new session is used) or to another one (`taken`).
    /// The running operation belonged to the earlier login and is dropped, with unsaved changes; the user is notified
    /// of lost changes.
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
