// Adding devices by hand and from favourites: the dialogs, and what happens between them and the devices.
import QtQuick
import configtools

Item {
    id: root

    required property var addingBatches
    required property Batches batches
    required property BusyState busyState
    required property var deviceFactory
    property bool asking: false  // a device is being logged in to
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

    /// Tries to add what the dialog holds, once the dialog shows that it is busy.
    function tryDevice(dialog, device, isFavourite) {
        // The device takes the place of its row, with another account and address.
        const refusal = busyState.refusal(BusyState.ChangeAddress);
        if (refusal !== "") {
            said(refusal, OVToast.Error);
            return;
        }
        dialog.busy = asking = true;
        afterPaint.run(() => {
            const code = deviceAdding.add(device);
            // Clicks that have queued up meanwhile meet a dialog that is busy still.
            afterPaint.run(() => showOutcome(dialog, device, isFavourite, code));
        });
    }

    function showOutcome(dialog, device, isFavourite, code) {
        dialog.busy = asking = false;
        if (code !== DeviceAdding.Added) {
            const error = deviceAdding.errorText(code);
            dialog.showResult(code, error);
            if (error !== "")
                said(error, OVToast.Error);
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
    }
    Favourites {
        id: savedDevices
    }
    BusyReport {
        active: root.asking
        state: root.busyState
        title: qsTr("手动添加")
    }
    OVAfterPaint {
        id: afterPaint
    }

    // qmllint disable unqualified
    OVOnDemand {
        id: byHand
        visible: false
        sourceComponent: AddDeviceDialog {
            id: dialog
            onConfirmed: (device, isFavourite) => root.tryDevice(dialog, device, isFavourite)
            onRefused: message => root.said(message, OVToast.Error)
        }
    }
    OVOnDemand {
        id: fromFavourites
        visible: false
        sourceComponent: AddDevicesByFavoritesWindow {
            addingBatches: root.addingBatches
            batches: root.batches
            favourites: savedDevices
            onSaid: (message, kind) => root.said(message, kind)
            onByHandRequested: root.openIp()
        }
    }
    // qmllint enable unqualified
}
