// The device that is watched: its login, which is the one that the configuration pages use too, and its channels.
// What holds a caller up for as long as a device takes is done elsewhere meanwhile.
import QtQuick
import configtools

Item {
    id: root

    required property var deviceFactory
    property string ipport
    property string name
    property bool loggedIn: false
    property bool asking: false        // whether it answers, with a login where it has to be
    readonly property bool busy: asking && !loggedIn
    property bool isGiven: false       // the user has just given the account that it is asked with
    property int result: 0             // a LoginResult
    readonly property string failure: result !== 0 ? LoginMemory.failureText(result, ipport, deviceFactory) : ""
    readonly property alias resting: pause.running  // until the next try of a login
    readonly property alias restSeconds: pause.seconds
    property var channels: []          // maps of "channel" (from 0), "name" and "connected"
    signal opened                      // its channels are known
    signal lost                        // another device was logged in to
    signal renewed                     // there is a new session with the same device
    signal answered(bool isThere)      // after look()

    /// Whether another account or password may help.
    readonly property bool accountRefused: result === 1 || result === 2 || result === 4
        || result === 16

    /// What time may mend. More tries of a wrong password would lock the account.
    readonly property bool unreachable: result === 5

    property double heard: 0  // when the device answered last, in ms
    readonly property int freshness: 1000

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

    /// A login that the device has refused in its session is sent again only if the user has given it now.
    function login(user, password, given) {
        pause.stop();
        asking = true;
        isGiven = given;
        deviceFactory.openSession("dh", ipport, user, password, !loggedIn, given);
    }

    function tryAgain() {
        const row = deviceFactory.getDeviceInfo("dh", ipport);
        if (accountRefused)
            relogin.wanted().ask(row.mac ?? "", ipport, account().user, result);
        else
            ask();
    }

    /// A picture came.
    function noteAlive() {
        heard = Date.now();
    }

    /// A stream failed: the session may have ended.
    function doubt() {
        heard = 0;
    }

    /// Checks whether a stream can be requested: answered() follows. A restart of the device ends the session; the
    /// login is then repeated, once for all streams.
    function look() {
        if (asking)
            return;
        if (!loggedIn)
            answered(false);
        else if (Date.now() - heard < freshness)
            answered(true);
        else
            ask();
    }

    function close() {
        relogin.item?.close();
        pause.settle();
        if (asking)
            deviceFactory.stopOpeningSession("dh");
        asking = false;
        loggedIn = false;
        result = 0;
        ipport = "";
        channels = [];
        doubt();
    }

    function take(channels) {
        pause.settle();
        noteAlive();
        if (channels.length > 0)
            root.channels = channels;
        if (loggedIn) {
            answered(true);
        } else {
            loggedIn = true;
            opened();
        }
    }

    function fail() {
        if (!unreachable)
            loggedIn = false;
        else if (!loggedIn)
            pause.fail();
        answered(false);  // the streams rest by themselves
        if (isGiven && accountRefused)
            tryAgain();
    }

    visible: false

    GrowingPause {
        id: pause
        onOver: root.ask()
    }
    Connections {
        enabled: root.ipport !== ""
        target: root.deviceFactory

        function onSignalSessionOpened(ipport, result, channels) {
            if (!root.asking || ipport !== root.ipport)
                return;
            root.asking = false;
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
            } else if (root.loggedIn || root.asking) {
                root.lost();
            } else {
                pause.stop();  // another device is worked with: it is not to be taken away unasked
            }
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
                root.login(account, password, true);
            }
        }
    }
    // qmllint enable unqualified
}
