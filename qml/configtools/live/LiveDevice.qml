// The device that the live window was opened for. It shares its login with the configuration pages. Logins and checks
// run in the background.
import QtQuick
import configtools

Item {
    id: root

    required property var deviceFactory
    property string ipport
    property string name
    property bool loggedIn: false
    property bool checking: false        // login or check in progress
    readonly property bool busy: checking && !loggedIn
    property bool isGiven: false       // the running login uses an account just entered by the user
    property int result: 0             // a LoginResult
    readonly property string failure: result !== 0 ? LoginMemory.failureText(result, ipport, deviceFactory) : ""
    readonly property alias waitingForRetry: backoff.running  // waits for the next login attempt
    readonly property alias retrySeconds: backoff.secondsLeft
    property var channels: []          // maps with "channel" (from 0), "name" and "connected" (bool)
    signal opened                      // logged in; the channels are known
    signal lost                        // another device took over the session
    signal renewed                     // a new session with the same device was opened
    signal checked(bool isReachable)      // result of check()

    /// Whether another account or password may help.
    readonly property bool accountRefused: result === 1 || result === 2 || result === 4
        || result === 16

    /// The device may become reachable later. Other failures are not retried: repeated wrong passwords lock the
    /// account.
    readonly property bool unreachable: result === 5

    property double lastResponse: 0  // time of the last response, in ms
    readonly property int responseValidity: 1000  // ms after a response without a check

    function sessionDevice() {
        return deviceFactory.getConfigData("dh", "sessionDevice");
    }

    function account() {
        return LoginMemory.accountFor(ipport, deviceFactory);
    }

    function open(ipport) {
        close();
        root.ipport = ipport;
        name = deviceFactory.getDeviceInfo("dh", ipport).name ?? "";
        ask();
    }

    function ask() {
        const known = account();
        login(known.user, known.password, false);
    }

    /// The back end rejects an account that the device has refused in this session, unless `given`: just entered by the
    /// user.
    function login(user, password, given) {
        backoff.stop();
        checking = true;
        isGiven = given;
        deviceFactory.openSession("dh", ipport, user, password, !loggedIn, given);
    }

    function tryAgain() {
        const row = deviceFactory.getDeviceInfo("dh", ipport);
        if (accountRefused)
            relogin.instance().ask(row.mac ?? "", ipport, account().user, result);
        else
            ask();
    }

    /// Called when a frame was received.
    function noteResponse() {
        lastResponse = Date.now();
    }

    /// Called after a stream failed: the session may have ended, so the next check() logs in again.
    function expireResponse() {
        lastResponse = 0;
    }

    /// Checks whether the device is reachable, once for all streams. Emits checked(), immediately if it responded
    /// within `responseValidity`. If a restart of the device has ended the session, it logs in again.
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
