// An added device of the live window, with a separate session. It logs in when it is created, and again after failures
// as stated at `unreachable`. The login runs in the background. The session ends with this object, and after a failure
// other than a missing response.
import QtQuick
import configtools

Item {
    id: root

    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    required property string ipport  // "address:port"
    required property string name  // of the device
    property bool loggedIn: false  // there is a session; it is kept while the device does not respond
    property bool checking: false  // a login or check runs
    property bool isGiven: false  // the running login uses an account just entered by the user
    property int result: 0       // a LoginResult (0: success) of the last login or check
    /// Array of maps with "channel" (from 0), "name" and "connected" (bool: a camera is connected). One entry until the
    /// channels are known.
    property var channels: [{channel: 0, name: "", connected: true}]
    readonly property alias handle: session.handle  // handle of the session in the device library, 0 without one
    readonly property bool busy: checking && !loggedIn  // a login runs

    /// Why there is no session now, also that the login runs; "" with a session, also while its device is offline.
    readonly property string failure: loggedIn ? "" : busy ? qsTr("正在登录…")
        : backoff.running ? qsTr("%1，%n 秒后重试", "", backoff.secondsLeft).arg(deviceFactory.getErrorName(result))
        : deviceFactory.getErrorName(result)
    /// Text of the button for tryAgain(), "" for no button.
    readonly property string action: loggedIn || busy ? "" : accountRefused ? qsTr("重新登录") : qsTr("重试")

    /// Whether another account or password may help: NoSuchAccount, WrongPassword, AccountLoggedIn or SessionEnded.
    readonly property bool accountRefused: result === 1 || result === 2 || result === 4 || result === 16
    /// NetworkFailure: without a session, the login is retried with growing delays. After other failures it is not, as
    /// repeated wrong passwords lock the account.
    readonly property bool unreachable: result === 5

    property double lastResponse: 0  // time of the last response, in ms since 1970
    readonly property int responseValidity: 1000  // ms after a response in which check() sends no request
    signal renewed                   // a new session was opened, also the first one: streams must start again in it
    signal checked(bool isReachable)  // the result of check(); also emitted at the end of each login
    signal snapshotTaken(int channel, string image, string message)  // URL of the file, or "" and the reason

    /// The account for a login to the device: a map of "user" and "password".
    function account() {
        return LoginMemory.accountFor(ipport, deviceFactory);
    }

    /// Logs in with the account that is chosen for the device, see account(). If there is a session already and the
    /// device responds in it, the session is kept. If the device no longer accepts the login of that session, no login
    /// is made and `result` is the reason. checked() follows.
    function ask() {
        const known = account();
        login(known.user, known.password, false);
    }

    /// Same with this account. `given`: the user has just entered it, so that a refusal opens the login dialog again.
    function login(user, password, given) {
        backoff.stop();
        checking = true;
        isGiven = given;
        session.open(ipport, user, password);
    }

    /// For the user: opens the login dialog if the account was refused, otherwise logs in again.
    function tryAgain() {
        const row = deviceFactory.getDeviceInfo("dh", ipport);
        if (accountRefused)
            relogin.instance().ask(row.mac ?? "", ipport, account().user, result);
        else
            ask();
    }

    /// Called when a stream has received its first frame.
    function noteResponse() {
        lastResponse = Date.now();
    }

    /// Called after a stream failed: the session may have ended, so the next check() sends a request.
    function expireResponse() {
        lastResponse = 0;
    }

    /// Checks whether the device is reachable, with one request for all of its streams. checked() follows: immediately
    /// without a session (false), or if the device responded within `responseValidity` (true); otherwise after ask(),
    /// which opens a new session if the device does not respond in the present one, as after a restart. While a login
    /// or check runs, no further request is sent; its end is the result.
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

    /// Saves a snapshot of a channel (from 0) to the folder `folder` in the folder of snapshots. snapshotTaken()
    /// follows, unless the session ends before. Does nothing without a session.
    function takeSnapshot(channel, folder) {
        session.takeImage(channel, folder);
    }

    /// Takes a successful result. Without new channels, the known ones remain.
    function take(channels) {
        backoff.reset();
        noteResponse();
        if (channels.length > 0)
            root.channels = channels;
        loggedIn = true;
    }

    /// Takes the failure `result`: ends the session, except if the device did not respond.
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
