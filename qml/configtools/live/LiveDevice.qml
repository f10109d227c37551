// The device that is watched: its login, which is the one that the configuration pages use too, and its channels.
import QtQuick
import configtools

Item {
    id: root

    required property var deviceFactory
    required property var localConfig
    property string ipport
    property string name
    property bool loggedIn: false
    property bool busy: false
    property int result: 0
    readonly property string failure: result !== 0 ? deviceFactory.getErrorName(result) : ""
    property var channels: []  // maps of "channel" (from 0), "name" and "connected"
    signal opened              // its channels are known
    signal lost                // another device was logged in to
    signal renewed             // there is a new session with the same device

    enum Readiness {
        Ready,    // a stream can be asked for
        Renewed,  // there is a new session: every stream begins anew
        Away      // the device does not answer, or does not let the user in
    }

    /// Whether another account or password may help.
    readonly property bool accountRefused: result === 1 || result === 2 || result === 4

    property bool inDoubt: false  // a stream has failed since the last picture: the session may have ended
    property int rest: shortestRest
    property double nextCheck: 0  // when a device that was away is looked for again, in ms
    readonly property int shortestRest: 2000
    readonly property int longestRest: 32000

    function sessionDevice() {
        return deviceFactory.getConfigData("dh", "sessionDevice");
    }

    function sessionAnswers() {
        return sessionDevice() === ipport && deviceFactory.getConfigData("dh", "sessionAnswers");
    }

    function account() {
        const row = deviceFactory.getDeviceInfo("dh", ipport);
        return {user: row.username || localConfig.getSearchConfigUsrename(),
                password: row.password || localConfig.getSearchConfigPass()};
    }

    function open(ipport) {
        root.ipport = ipport;
        name = deviceFactory.getDeviceInfo("dh", ipport).name ?? "";
        channels = [];
        result = 0;
        loggedIn = false;
        settle();
        work(() => {
            if (sessionAnswers()) {
                loggedIn = true;
                readChannels();
                opened();
            } else {
                const known = account();
                login(known.user, known.password);
            }
        });
    }

    function login(user, password) {
        result = deviceFactory.findAndLoginDevice("dh", ipport, user, password);
        loggedIn = result === 0;
        if (loggedIn) {
            readChannels();
            opened();
        }
    }

    function tryAgain() {
        const row = deviceFactory.getDeviceInfo("dh", ipport);
        if (accountRefused)
            relogin.wanted().ask(row.mac ?? "", ipport, account().user);
        else
            open(ipport);
    }

    /// A picture came.
    function settle() {
        inDoubt = false;
        rest = shortestRest;
        nextCheck = 0;
    }

    /// Asked before a stream is. A device that rebooted has forgotten the session. One that is away holds the window up
    /// for as long as a login waits for it: it is looked for once for all streams, after rests that grow.
    function readiness() {
        if (!loggedIn)
            return LiveDevice.Away;
        if (!inDoubt)
            return LiveDevice.Ready;
        if (Date.now() < nextCheck)
            return LiveDevice.Away;
        if (sessionAnswers())
            return LiveDevice.Ready;
        busy = true;
        const known = account();
        const code = deviceFactory.findAndLoginDevice("dh", ipport, known.user, known.password);
        if (code === 0) {
            settle();
            readChannels();
            Qt.callLater(renewed);
        } else {
            nextCheck = Date.now() + rest;
            rest = Math.min(2 * rest, longestRest);
            result = code;
            loggedIn = !accountRefused;  // more tries would lock the account
        }
        busy = false;
        return code === 0 ? LiveDevice.Renewed : LiveDevice.Away;
    }

    function close() {
        paint.work = null;
        busy = false;
        loggedIn = false;
        ipport = "";
        channels = [];
    }

    /// Each of these holds the window up for as long as the device takes.
    function work(job) {
        busy = true;
        paint.run(() => {
            job();
            busy = false;
        });
    }

    function readChannels() {
        channels = deviceFactory.getConfigData("dh", "liveChannels");
    }

    visible: false

    Connections {
        enabled: root.loggedIn && !root.busy
        target: root.deviceFactory

        function onSignalHighLevelLoginRet(result) {
            if (result !== 0)
                return;
            if (root.sessionDevice() !== root.ipport)
                root.lost();
            else
                root.renewed();
        }
    }
    OVAfterPaint {
        id: paint
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
                root.settle();
                root.work(() => root.login(account, password));
            }
        }
    }
    // qmllint enable unqualified
}
