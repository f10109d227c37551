// Adds devices to the list: one device by hand, with its dialog, progress and messages, and the window that adds
// favourites. Each device is added by a login.
import QtQuick
import configtools

Item {
    id: root

    required property var addingBatches  // an AddingBatches: starts batches that add devices to the list
    required property Batches batches  // starts batches for all pages; one batch runs at a time
    required property BusyState busyState  // running work of all pages, and the actions that it blocks
    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    /// The device being added: "dialog" (an AddDeviceDialog), "device" (see AddDeviceDialog.confirmed) and
    /// "isFavourite" (save it as a favourite after success). Null for none.
    property var pending: null
    property alias favouritesFolder: savedDevices.folder  // path of the folder of the favourites, with "/" at the end
    signal notify(string message, int severity)  // show this message; severity: an OVToast.Severity
    signal added  // a device was added by hand: the page reads the list again

    /// Opens the dialog for a device by IP address.
    function openIp() {
        byHand.instance().begin(DeviceAdding.IP);
    }
    /// Opens the dialog for a device by P2P ID.
    function openP2p() {
        byHand.instance().begin(DeviceAdding.P2P);
    }
    /// Opens the window of the favourites.
    function openFavourites() {
        fromFavourites.instance().begin();
    }

    /// Starts adding the device of the dialog. The dialog is busy meanwhile and can be cancelled, which ends the work.
    /// While other work needs the rows, nothing starts and the dialog shows the reason.
    function tryDevice(dialog, device, isFavourite) {
        // The device may replace its row and change account and address.
        const refusal = busyState.refusal(BusyState.ChangeAddress);
        if (refusal !== "") {
            dialog.inform(refusal, OVToast.Error);
            return;
        }
        dialog.busy = true;
        pending = {dialog: dialog, device: device, isFavourite: isFavourite};
        deviceAdding.addDevice(device);
    }

    /// Closes the dialog after success, otherwise shows the error in it. `outcome`: map of "result" (a LoginResult) and
    /// "text", see DeviceAdding.errorText().
    function showOutcome(outcome) {
        const {dialog, device, isFavourite} = pending;
        pending = null;
        dialog.busy = false;
        if (outcome.result !== DeviceAdding.Added) {
            const error = deviceAdding.errorText(outcome);
            dialog.showResult(outcome.result, error);
            return;
        }
        dialog.close();
        added();
        if (isFavourite && savedDevices.save(device) === "")
            notify(qsTr("设备已添加，但无法保存到收藏夹，请检查程序所在文件夹的写入权限"), OVToast.Error);
        else
            notify(isFavourite ? qsTr("设备已添加，并保存到收藏夹") : qsTr("设备已添加"), OVToast.Success);
    }

    DeviceAdding {
        id: deviceAdding
        deviceFactory: root.deviceFactory
        onEnded: outcome => root.showOutcome(outcome)
    }
    Favourites {
        id: savedDevices
    }
    BusyReport {
        active: deviceAdding.running
        state: root.busyState
        title: qsTr("手动添加")
    }

    // qmllint disable unqualified
    OVOnDemand {
        id: byHand
        visible: false
        sourceComponent: AddDeviceDialog {
            id: dialog
            defaultPort: root.deviceFactory.getConfigData("dh", "library", 0).defaultPort
            onAboutToHide: deviceAdding.cancel()
            onConfirmed: (device, isFavourite) => root.tryDevice(dialog, device, isFavourite)
        }
    }
    OVOnDemand {
        id: fromFavourites
        visible: false
        sourceComponent: AddDevicesByFavoritesWindow {
            addingBatches: root.addingBatches
            batches: root.batches
            favourites: savedDevices
            onByHandRequested: root.openIp()
            onPasswordRequested: device => byHand.instance().beginFavourite(device)
        }
    }
    // qmllint enable unqualified
}
