// The minute for the new password after the check of the old one: devices, remaining time, reason of the end. The back
// end keeps their logins for that time.
import QtQml
import configtools

QtObject {
    id: root

    required property var deviceFactory
    required property bool changing  // a batch sends the new password with the kept logins
    property bool open: false        // the new password can be entered
    property int secondsLeft: 0
    property list<string> devices    // with the old password
    property int ending: SystemPasswordTime.Regular
    property int leftCount: 0        // number of devices with the old password at the end
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

    /// Ends the input. The logins end too, those of a running batch after its end.
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
            endLogins();
    }

    /// Result of a batch; `left` still have the old password.
    function takeResults(left) {
        devices = left;
        if (endsLater)
            endLogins();
        else if (left.length === 0)
            close(SystemPasswordTime.Regular);
        else if (secondsLeft === 0)
            close(SystemPasswordTime.TimeOver);
    }

    function endLogins() {
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
