// Adding devices by hand and from favourites: the dialogs, and what happens between them and the devices.
import QtQuick
import configtools

Item {
    id: root

    required property var addingBatches
    required property Batches batches
    required property BusyState busyState
    required property var deviceFactory
    property var wish: null  // what is being added: "dialog", "device" and "isFavourite"
    property alias favouritesFolder: savedDevices.folder
    signal said(string message, int kind)
    signal added  // the list has changed

    function openIp() {
        byHand.wanted().begin(DeviceAdding.IP);
    }
    function openP2p() {
        byHand.wanted().begin(DeviceAdding.P2P);
    }
    function openFavourites() {
        fromFavourites.wanted().begin();
    }

    /// Tries to add what the dialog holds. The dialog is busy meanwhile, and may be cancelled.
    function tryDevice(dialog, device, isFavourite) {
        // The device takes the place of its row, with another account and address.
        const refusal = busyState.refusal(BusyState.ChangeAddress);
        if (refusal !== "") {
            dialog.inform(refusal, OVToast.Error);
            return;
        }
        dialog.busy = true;
        wish = {dialog: dialog, device: device, isFavourite: isFavourite};
        deviceAdding.addDevice(device);
    }

    function showOutcome(outcome) {
        const {dialog, device, isFavourite} = wish;
        wish = null;
        dialog.busy = false;
        if (outcome.result !== DeviceAdding.Added) {
            const error = deviceAdding.errorText(outcome);
            dialog.showResult(outcome.result, error);
            return;
        }
        dialog.close();
        added();
        if (isFavourite && savedDevices.save(device) === "")
            said(qsTr("设备已添加，但无法保存到收藏夹，请检查程序所在文件夹的写入权限"), OVToast.Error);
        else
            said(isFavourite ? qsTr("设备已添加，并保存到收藏夹") : qsTr("设备已添加"), OVToast.Success);
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
