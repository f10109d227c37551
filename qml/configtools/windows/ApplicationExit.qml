// Exits or restarts the application, or opens the demo site. Running work and unsaved settings are handled first.
import QtQuick
import configtools

Item {
    id: root

    required property Batches batches
    required property BusyState busyState
    required property var deviceFactory
    required property var localConfig
    required property WindowPopups popups
    required property var host  // the window; its leavePage(action) returns whether it asks first
    signal leaving  // the window state is to be stored

    /// Exits unless work runs or the user wants to save. Returns whether it exits.
    function requestEnd() {
        if (batches.running) {
            popups.askToEnd(batches.current.title, deviceFactory.hasDeviceUpgrading());
            return false;
        }
        return isFree(BusyState.Close) && !host.leavePage(end);
    }

    /// Exits during a batch.
    function endBatch() {
        host.leavePage(() => {
            batches.stopForExit();
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

    /// Whether no running work prevents the action. If it does, reports it.
    function isFree(action) {
        const refusal = busyState.refusal(action);
        if (refusal !== "")
            popups.notify(refusal, OVToast.Refusal);
        return refusal === "";
    }

    function end() {
        leaving();
        popups.closeLive();
        deviceFactory.exitProgram();
    }

    visible: false
}
