// The minute in which the user enters the new password, after the check of the old one. The back end keeps the logins
// of the devices that have accepted the old password until endLogins().
import QtQml
import configtools

QtObject {
    id: root

    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    /// The batch that sends the new password runs. The seconds are counted down meanwhile, but at 0 the time ends only
    /// after the batch, see takeResults().
    required property bool changing
    property bool open: false        // the new password can be entered
    property int secondsLeft: 0  // 0 to 60
    property list<string> devices    // "address:port" of the logged-in devices that still have the old password
    property int ending: SystemPasswordTime.Regular  // reason of the last end, an Ending
    property int leftCount: 0        // number of devices with the old password at close()
    property int second: 1000        // length of a second in ms; tests set a shorter one
    property bool endsLater: false  // the logins end after the running batch
    signal ended  // the logins are being closed; after close(), or after the batch that uses them

    /// Why the time has ended. Regular: the new password is set, or the user left the page or checks a password again.
    /// TimeOver: the minute has passed. OtherTicks: other devices are ticked. OtherWork: another command has started.
    enum Ending { Regular, TimeOver, OtherTicks, OtherWork }

    /// Starts the time. `waiting`: "address:port" of the devices that have accepted the old password.
    function begin(waiting) {
        devices = waiting;
        ending = SystemPasswordTime.Regular;
        secondsLeft = 60;
        open = true;
        countdown.restart();
    }

    /// Ends the time. The kept logins are closed, too; while a batch uses them, after its end. Does nothing if the time
    /// has ended already. `why`: an Ending.
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

    /// Called at the end of a batch of new passwords. `left`: "address:port" of the devices that still have the old
    /// password. Without such a device, or when no time is left, the time ends. If close() was called during the batch,
    /// the kept logins are closed now.
    function takeResults(left) {
        devices = left;
        if (endsLater)
            endLogins();
        else if (left.length === 0)
            close(SystemPasswordTime.Regular);
        else if (secondsLeft === 0)
            close(SystemPasswordTime.TimeOver);
    }

    /// Closes the kept logins in the background.
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
