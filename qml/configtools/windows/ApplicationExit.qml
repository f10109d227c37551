// Exits or restarts the application, or restarts it on the demo site. An exit during a batch stops the batch after a
// question; other running work prevents the exit. A restart is refused while any work runs. The user is asked about
// unsaved settings in each case.
import QtQuick
import configtools

Item {
    id: root

    required property Batches batches  // starts batches for all pages; one batch runs at a time
    required property BusyState busyState  // running work of all pages, and the actions that it blocks
    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    required property var localConfig  // a CLocalConfig: the settings of the application
    required property WindowPopups popups  // questions and messages
    required property var host  // the main window; its leavePage(action) returns whether it asks first
    signal leaving  // the application ends now: the window state is to be stored

    /// Exits if nothing prevents it, and returns true. Returns false if running work prevents it, which is notified, or
    /// if the user is asked first. After a question the application exits unless the user cancels.
    function requestEnd() {
        if (batches.running) {
            popups.askToEnd(batches.current.title, deviceFactory.hasDeviceUpgrading());
            return false;
        }
        return isFree(BusyState.Close) && !host.leavePage(end);
    }

    /// Stops the running batch and exits. Asks about unsaved settings before.
    function endBatch() {
        host.leavePage(() => {
            batches.stopForExit();
            end();
        });
    }

    /// Restarts the application. Refused while work runs.
    function requestRestart() {
        restartBy(() => localConfig.reboot());
    }

    /// Restarts the application on the demo site. Refused while work runs.
    function requestDemo() {
        restartBy(() => localConfig.openDemoSite());
    }

    /// Calls `start`, which restarts the application, when the page can be left. Refused while work runs.
    function restartBy(start) {
        if (isFree(BusyState.Restart))
            host.leavePage(() => {
                leaving();
                start();
            });
    }

    /// Whether no running work prevents the action (BusyState.Close or Restart). Notifies the obstacle otherwise.
    function isFree(action) {
        const refusal = busyState.refusal(action);
        if (refusal !== "")
            popups.notify(refusal, OVToast.Refusal);
        return refusal === "";
    }

    /// Exits without a question.
    function end() {
        leaving();
        popups.media.close();
        deviceFactory.exitProgram();
    }

    visible: false
}
