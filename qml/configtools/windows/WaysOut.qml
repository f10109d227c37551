// The ways out of the program: its end, a restart, the demo site. Works in progress and unsaved settings come first.
import QtQuick
import configtools

Item {
    id: root

    required property Batches batches
    required property BusyState busyState
    required property var deviceFactory
    required property var localConfig
    required property WindowPopups popups
    required property var host  // the window: its leavePage() takes what follows, and returns whether it asks first
    signal leaving  // what the window remembers is to be stored

    /// Ends the program, unless it is at work or the user still wants to save. Returns whether it ends.
    function requestEnd() {
        if (batches.running) {
            popups.askToEnd(batches.current.title, deviceFactory.hasDeviceUpgrading());
            return false;
        }
        return isFree(BusyState.Close) && !host.leavePage(end);
    }

    /// The same although a batch runs.
    function endBatch() {
        host.leavePage(() => {
            batches.giveUp();
            end();
        });
    }

    function requestRestart() {
        restartBy(() => localConfig.reboot());
    }

    function requestDemo() {
        restartBy(() => localConfig.openDemoSite());
    }

    function restartBy(start) {
        if (isFree(BusyState.Restart))
            host.leavePage(() => {
                leaving();
                start();
            });
    }

    /// Whether nothing is in the way; otherwise the user is shown what.
    function isFree(action) {
        const refusal = busyState.refusal(action);
        if (refusal !== "")
            popups.say(refusal, OVToast.Refusal);
        return refusal === "";
    }

    function end() {
        leaving();
        popups.closeLive();
        deviceFactory.exitProgram();
    }

    visible: false
}
