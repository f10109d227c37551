// The minute in which devices whose old password was right wait for the new one: which ones, how long, and why it
// ended without a new password. The back end keeps their logins for it.
import QtQml
import configtools

QtObject {
    id: root

    required property var deviceFactory
    required property bool changing  // a batch sends the new password in the kept logins
    property bool open: false        // the new password can be given
    property int secondsLeft: 0
    property list<string> devices    // that still have the old password
    property int ending: SystemPasswordTime.Regular
    property int leftCount: 0        // devices with the old password at the end
    property int second: 1000        // ms
    property bool endsLater: false
    signal ended

    enum Ending { Regular, TimeOver, OtherTicks, OtherWork }

    function begin(waiting) {
        devices = waiting;
        ending = SystemPasswordTime.Regular;
        secondsLeft = 60;
        open = true;
        countdown.restart();
    }

    /// Takes no new password any more. The logins end too, but those of a running batch only after its end.
    function close(why) {
        if (!open)
            return;
        open = false;
        countdown.stop();
        ending = why;
        leftCount = devices.length;
        if (changing)
            endsLater = true;
        else
            letGo();
    }

    /// A batch has sent the new password; `left` still have the old one.
    function takeResults(left) {
        devices = left;
        if (endsLater)
            letGo();
        else if (left.length === 0)
            close(SystemPasswordTime.Regular);
        else if (secondsLeft === 0)
            close(SystemPasswordTime.TimeOver);
    }

    function letGo() {
        endsLater = false;
        devices = [];
        deviceFactory.systemConfig("dh", "cancelLogin", {}, []);
        ended();
    }

    readonly property Timer countdown: Timer {
        interval: root.second
        repeat: true
        onTriggered: {
            root.secondsLeft = Math.max(0, root.secondsLeft - 1);
            if (root.secondsLeft === 0 && !root.changing)
                root.close(SystemPasswordTime.TimeOver);
        }
    }
}
