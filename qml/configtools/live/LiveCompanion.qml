// A further device of the live window, with a session of its own. Its pictures stand beside those of the device that the
// window was opened for. The session ends with this object.
import QtQuick
import configtools

Item {
    id: root

    required property var deviceFactory
    required property string ipport
    required property string name
    property bool loggedIn: false
    property bool asking: false  // whether the device answers, with a login where it has to be
    property bool isGiven: false // the user has just given the account that it is asked with
    property int result: 0       // a LoginResult
    property var channels: [{channel: 0, name: "", connected: true}]  // as of LiveDevice; one until they are known
    readonly property alias handle: session.handle  // of the session
    readonly property bool busy: asking && !loggedIn

    /// Why it cannot be watched; empty when it can.
    readonly property string failure: loggedIn ? "" : busy ? qsTr("正在登录…")
        : pause.running ? qsTr("%1，%n 秒后重试", "", pause.seconds).arg(deviceFactory.getErrorName(result))
        : deviceFactory.getErrorName(result)
    readonly property string action: loggedIn || busy ? "" : accountRefused ? qsTr("重新登录") : qsTr("重试")

    /// Whether another account or password may help.
    readonly property bool accountRefused: result === 1 || result === 2 || result === 4 || result === 16
    /// What time may mend. More tries of a wrong password would lock the account.
    readonly property bool unreachable: result === 5

    property double heard: 0  // when the device answered last, in ms
    readonly property int freshness: 1000
    signal renewed                   // there is a new session
    signal answered(bool isThere)    // after look()
    signal pictureTaken(int channel, string picture, string message)  // after takePicture()

    function account() {
        return LoginMemory.accountFor(ipport, deviceFactory);
    }

    function ask() {
        const known = account();
        login(known.user, known.password, false);
    }

    function login(user, password, given) {
        pause.stop();
        asking = true;
        isGiven = given;
        session.open(ipport, user, password);
    }

    function tryAgain() {
        const row = deviceFactory.getDeviceInfo("dh", ipport);
        if (accountRefused)
            relogin.wanted().ask(row.mac ?? "", ipport, account().user, result);
        else
            ask();
    }

    function noteAlive() {
        heard = Date.now();
    }

    /// A stream failed: the session may have ended.
    function doubt() {
        heard = 0;
    }

    /// Looks whether a stream can be asked for: answered() follows.
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

    /// Into the folder of this name, below that of all snapshots.
    function takePicture(channel, folder) {
        session.takePicture(channel, folder);
    }

    function take(channels) {
        pause.settle();
        noteAlive();
        if (channels.length > 0)
            root.channels = channels;
        loggedIn = true;
    }

    function fail() {
        if (!unreachable) {
            loggedIn = false;
            session.close();
        } else if (!loggedIn) {
            pause.fail();
        }
        answered(false);
        if (isGiven && accountRefused)
            tryAgain();
    }

    visible: false
    Component.onCompleted: ask()

    GrowingPause {
        id: pause
        onOver: root.ask()
    }
    LiveSession {
        id: session
        property double before: 0

        deviceFactory: root.deviceFactory
        onPictureTaken: (channel, path, message) => root.pictureTaken(channel, path, message)
        onEnded: (result, channels) => {
            root.asking = false;
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
            root.answered(true);
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
