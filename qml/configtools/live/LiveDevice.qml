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
    signal lost                // another device was logged in to
    signal renewed             // there is a new session with the same device

    /// Whether another account or password may help.
    readonly property bool accountRefused: result === 1 || result === 2 || result === 4

    function sessionDevice() {
        return deviceFactory.getConfigData("dh", "sessionDevice");
    }

    function open(ipport) {
        const row = deviceFactory.getDeviceInfo("dh", ipport);
        root.ipport = ipport;
        name = row.name ?? "";
        channels = [];
        result = 0;
        loggedIn = sessionDevice() === ipport;
        if (loggedIn)
            work(readChannels);
        else
            login(row.username || localConfig.getSearchConfigUsrename(),
                  row.password || localConfig.getSearchConfigPass());
    }

    function login(account, password) {
        loggedIn = false;
        work(() => {
            result = deviceFactory.findAndLoginDevice("dh", ipport, account, password);
            loggedIn = result === 0;
            if (loggedIn)
                readChannels();
        });
    }

    function tryAgain() {
        const row = deviceFactory.getDeviceInfo("dh", ipport);
        if (accountRefused)
            relogin.wanted().ask(row.mac ?? "", ipport, row.username || localConfig.getSearchConfigUsrename());
        else
            open(ipport);
    }

    /// A session that fails may have ended with a reboot of the device.
    function renew() {
        if (busy || !loggedIn)
            return;
        const row = deviceFactory.getDeviceInfo("dh", ipport);
        work(() => {
            const code = deviceFactory.findAndLoginDevice("dh", ipport,
                row.username || localConfig.getSearchConfigUsrename(),
                row.password || localConfig.getSearchConfigPass());
            if (code === 0)
                renewed();
        });
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
                root.login(account, password);
            }
        }
    }
    // qmllint enable unqualified
}
