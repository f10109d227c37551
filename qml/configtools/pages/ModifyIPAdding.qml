// Adds devices by hand and from favourites: dialogs, progress and messages.
import QtQuick
import configtools

Item {
    id: root

    required property var addingBatches
    required property Batches batches
    required property BusyState busyState
    required property var deviceFactory
    property var pending: null  // the device being added: "dialog", "device", "isFavourite"; null for none
    property alias favouritesFolder: savedDevices.folder
    signal notify(string message, int severity)
    signal added  // the device list has changed

    function openIp() {
        byHand.instance().begin(DeviceAdding.IP);
    }
    function openP2p() {
        byHand.instance().begin(DeviceAdding.P2P);
    }
    function openFavourites() {
        fromFavourites.instance().begin();
    }

    /// Adds the device of the dialog. The dialog is busy meanwhile and can be cancelled.
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
        }
    }
    // qmllint enable unqualified
}
