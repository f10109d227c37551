// The device that the live window was opened for. It uses the current session of the back end, which it shares with the
// configuration pages: another page can log in to another device and take the session over, see lost(). Logins and
// checks run in the background.
import QtQuick
import configtools

Item {
    id: root

    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    property string ipport             // "address:port"; "" while no device is open
    property string name  // of the device
    property bool loggedIn: false  // there is a session; it is kept while the device does not respond
    property bool checking: false        // a login or check runs
    readonly property bool busy: checking && !loggedIn  // a login runs
    property bool isGiven: false       // the running login uses an account just entered by the user
    property int result: 0             // a LoginResult (0: success) of the last login or check
    /// Error text of `result`; "" for a success.
    readonly property string failure: result !== 0 ? LoginMemory.failureText(result, ipport, deviceFactory) : ""
    readonly property alias waitingForRetry: backoff.running  // the next login follows in `retrySeconds`
    readonly property alias retrySeconds: backoff.secondsLeft
    property var channels: []  // maps with "channel" (from 0), "name", "connected" (bool: has a camera); [] if unknown
    signal opened                      // logged in, after open() or a retry; `channels` is [] if they were not read
    signal lost                        // a page has logged in to another device: the owner calls close()
    signal renewed                     // a new session replaced that of the same device: streams must start again
    signal checked(bool isReachable)  // the result of check(); also emitted, with false, after a failed login

    /// Whether another account or password may help: NoSuchAccount, WrongPassword, AccountLoggedIn or SessionEnded.
    readonly property bool accountRefused: result === 1 || result === 2 || result === 4
        || result === 16

    /// NetworkFailure: without a session, the login is retried with growing delays. After other failures it is not, as
    /// repeated wrong passwords lock the account.
    readonly property bool unreachable: result === 5

    property double lastResponse: 0  // time of the last response, in ms since 1970; 0: none
    readonly property int responseValidity: 1000  // ms after a response in which check() sends no request

    /// Address and port of the device of the current session.
    function sessionDevice() {
        return deviceFactory.getConfigData("dh", "sessionDevice");
    }

    /// The account for a login to the device: a map of "user" and "password".
    function account() {
        return LoginMemory.accountFor(ipport, deviceFactory);
    }

    /// Closes the earlier device and logs in to this one, in the background. opened() follows a success; after a
    /// failure see `result`.
    function open(ipport) {
        close();
        root.ipport = ipport;
        name = deviceFactory.getDeviceInfo("dh", ipport).name ?? "";
        ask();
    }

    /// Logs in with the account that is chosen for the device, see account(). If the current session is with this
    /// device already and the device responds in it, the session is kept.
    function ask() {
        const known = account();
        login(known.user, known.password, false);
    }

    /// Same with this account. `given`: the user has just entered it. A login is then made in any case, and a refusal
    /// opens the login dialog again. Otherwise, if the device no longer accepts the account in the current session, no
    /// login is made and `result` is the reason.
    function login(user, password, given) {
        backoff.stop();
        checking = true;
        isGiven = given;
        deviceFactory.openSession("dh", ipport, user, password, !loggedIn, given);
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
    /// without a session (false), or if the device responded within `responseValidity` (true); otherwise after the
    /// request, which opens a new session if the device does not respond in the present one, as after a restart. While
    /// a check runs, no further request is sent; its end is the result.
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

    /// Ends the use of the device and a running login, without a signal. The session of the back end remains.
    function close() {
        relogin.item?.close();
        backoff.reset();
        if (checking)
            deviceFactory.stopOpeningSession("dh");
        checking = false;
        loggedIn = false;
        result = 0;
        ipport = "";
        channels = [];
        expireResponse();
    }

    /// Takes a successful result. Without new channels, the known ones remain.
    function take(channels) {
        backoff.reset();
        noteResponse();
        if (channels.length > 0)
            root.channels = channels;
        if (loggedIn) {
            checked(true);
        } else {
            loggedIn = true;
            opened();
        }
    }

    /// Takes the failure `result`: ends the use of the session, except if the device did not respond.
    function fail() {
        if (!unreachable)
            loggedIn = false;
        else if (!loggedIn)
            backoff.fail();
        checked(false);  // the streams have their own retry delays
        if (isGiven && accountRefused)
            tryAgain();
    }

    visible: false

    ExponentialBackoff {
        id: backoff
        onElapsed: root.ask()
    }
    Connections {
        enabled: root.ipport !== ""
        target: root.deviceFactory

        function onSignalSessionOpened(ipport, result, channels) {
            if (!root.checking || ipport !== root.ipport)
                return;
            root.checking = false;
            root.result = result;
            LoginMemory.note(ipport, result);
            if (result === 0)
                root.take(channels);
            else
                root.fail();
        }
        function onSignalHighLevelLoginRet(result) {
            if (result !== 0)
                return;
            if (root.sessionDevice() === root.ipport) {
                if (root.loggedIn)
                    root.renewed();
            } else if (root.loggedIn || root.checking) {
                root.lost();
            } else {
                backoff.stop();  // another device uses the session: not taken over without a request
            }
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
