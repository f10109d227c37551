// An added device of the live window, with a separate session. The session ends with this object.
import QtQuick
import configtools

Item {
    id: root

    required property var deviceFactory
    required property string ipport
    required property string name
    property bool loggedIn: false
    property bool checking: false  // login or check runs
    property bool isGiven: false  // the running login uses an account just entered
    property int result: 0       // a LoginResult
    property var channels: [{channel: 0, name: "", connected: true}]  // see LiveDevice; one channel until they are known
    readonly property alias handle: session.handle  // handle of the session
    readonly property bool busy: checking && !loggedIn

    /// Why the device cannot be watched; empty if it can.
    readonly property string failure: loggedIn ? "" : busy ? qsTr("正在登录…")
        : backoff.running ? qsTr("%1，%n 秒后重试", "", backoff.secondsLeft).arg(deviceFactory.getErrorName(result))
        : deviceFactory.getErrorName(result)
    readonly property string action: loggedIn || busy ? "" : accountRefused ? qsTr("重新登录") : qsTr("重试")

    /// Whether another account or password may help.
    readonly property bool accountRefused: result === 1 || result === 2 || result === 4 || result === 16
    /// The device may become reachable later. Other failures are not retried: repeated wrong passwords lock the
    /// account.
    readonly property bool unreachable: result === 5

    property double lastResponse: 0  // time of the last response, in ms
    readonly property int responseValidity: 1000  // ms after a response without a check
    signal renewed                   // a new session was opened
    signal checked(bool isReachable)    // result of check()
    signal snapshotTaken(int channel, string image, string message)  // of takeSnapshot(): URL or error

    function account() {
        return LoginMemory.accountFor(ipport, deviceFactory);
    }

    function ask() {
        const known = account();
        login(known.user, known.password, false);
    }

    function login(user, password, given) {
        backoff.stop();
        checking = true;
        isGiven = given;
        session.open(ipport, user, password);
    }

    function tryAgain() {
        const row = deviceFactory.getDeviceInfo("dh", ipport);
        if (accountRefused)
            relogin.instance().ask(row.mac ?? "", ipport, account().user, result);
        else
            ask();
    }

    function noteResponse() {
        lastResponse = Date.now();
    }

    /// Called after a stream failed: the session may have ended, so the next check() logs in again.
    function expireResponse() {
        lastResponse = 0;
    }

    /// Checks whether the device is reachable. Emits checked(): immediately without a login and if it responded within
    /// `responseValidity`.
    function check() {
        if (checking)
            return;
        if (!loggedIn)
            checked(false);
        else if (Date.now() - lastResponse < responseValidity)
            checked(true);
        else
            ask();
    }

    /// Saves a snapshot to this subfolder of the snapshots folder.
    function takeSnapshot(channel, folder) {
        session.takeImage(channel, folder);
    }

    function take(channels) {
        backoff.reset();
        noteResponse();
        if (channels.length > 0)
            root.channels = channels;
        loggedIn = true;
    }

    function fail() {
        if (!unreachable) {
            loggedIn = false;
            session.close();
        } else if (!loggedIn) {
            backoff.fail();
        }
        checked(false);
        if (isGiven && accountRefused)
            tryAgain();
    }

    visible: false
    Component.onCompleted: ask()

    ExponentialBackoff {
        id: backoff
        onElapsed: root.ask()
    }
    LiveSession {
        id: session
        property double before: 0

        deviceFactory: root.deviceFactory
        onImageTaken: (channel, path, message) => root.snapshotTaken(channel, path, message)
        onEnded: (result, channels) => {
            root.checking = false;
            root.result = result;
            LoginMemory.note(root.ipport, result);
            if (result !== 0) {
                root.fail();
                return;
            }
            const isNew = handle !== before;
            before = handle;
            root.take(channels);
            if (isNew)
                root.renewed();
            root.checked(true);
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
                root.login(account, password, true);
            }
        }
    }
    // qmllint enable unqualified
}
