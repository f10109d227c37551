// Initialisation and address changes of the main page: the dialogs, their batches, and messages. Refusals are notified,
// and nothing starts then.
import QtQuick
import configtools

Item {
    id: root

    required property BusyState busyState  // running work of all pages, and the actions that it blocks
    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    required property var deviceTable  // a DeviceTableModel: the rows of the page, with their ticks
    required property Batches batches  // starts batches for all pages; one batch runs at a time
    /// The latest batch of this page, also one that restores addresses. Null before the first, and after a refused one.
    property Batch batch: null
    signal notify(string message, int severity)  // show this message; severity: an OVToast.Severity
    signal batchStarted  // a dialog has closed while a batch runs: the page moves the keyboard focus

    /// Whether addresses and accounts of rows may be changed now. Notifies the obstacle if not.
    function mayBegin() {
        const refusal = busyState.refusal(BusyState.ChangeAddress);
        if (refusal !== "")
            notify(refusal, OVToast.Refusal);
        return refusal === "";
    }

    /// Opens the list of the ticked devices, then the dialog for the account to create on them. The batch starts when
    /// both are confirmed. Refused if no uninitialised device is ticked.
    function initialise() {
        if (!mayBegin())
            return;
        if (deviceTable.checkedRowsWith(false).length === 0) {
            notify(qsTr("请选择一台未初始化的设备"), OVToast.Refusal);
            return;
        }
        const dialog = initialising.instance();
        dialog.load(deviceTable.checkedRows());
        dialog.open();
    }

    /// Opens the address dialog for all ticked rows.
    function modifyChecked() {
        const rows = deviceTable.checkedRows();
        if (rows.length === 0)
            notify(qsTr("请选择一台设备"), OVToast.Refusal);
        else
            askForAddresses(rows, true);
    }

    /// Opens the address dialog for the device of one row (index in `deviceTable`). Refused while its firmware is being
    /// upgraded. Does nothing for -1.
    function modifyRow(row) {
        if (row < 0)
            return;  // the device was hidden or removed while its menu was open
        const values = deviceTable.get(row);
        if (UpgradeTools.isRunning(values.upgraderes ?? UpgradeTools.None))
            notify(qsTr("设备正在升级，不能修改IP地址"), OVToast.Refusal);
        else
            askForAddresses([values], false);
    }

    /// Opens the address dialog. `rows`: values of rows of the table. `isBatch`: the dialog assigns consecutive
    /// addresses from a start address, otherwise one address. Refused while other work needs the rows.
    function askForAddresses(rows, isBatch) {
        if (!mayBegin())
            return;
        const dialog = readdressing.instance();
        dialog.load(rows, isBatch);
        dialog.open();
    }

    /// Starts the initialisation with this account. `keeping` (AccountList.Keeping): where the account is stored for
    /// the devices that accept it.
    function sendFirstPasswords(identities, account, password, keeping) {
        batch = batches.initialiseDevices("dh", qsTr("初始化"), identities, account, password);
        keeper.follow(batch, keeping);
    }

    /// Starts the address changes of the confirmed dialog, a ModifyIPDialog.
    function sendAddresses(dialog) {
        batch = batches.changeAddresses("dh", qsTr("修改IP地址"), dialog.plan.checkedIdentities(),
                                        dialog.plan.addresses(), dialog.mask, dialog.gateway, dialog.dhcp);
    }

    /// Moves the keyboard focus away from the button that opened the dialog: a closed dialog returns the focus to it,
    /// and a second Enter would open the dialog again.
    function moveFocusFromButton() {
        if (batches.running)
            batchStarted();
    }

    /// Called at the end of `batch`: reads the table again, stores the new accounts and notifies the results.
    function notifyEnd() {
        const report = batch.report;
        deviceTable.refresh();
        keeper.keep();
        const kept = batch === keeper.batch ? keeper.message : "";
        if (kept !== "")
            notify(kept, keeper.failure !== "" ? OVToast.Error : OVToast.Success);
        if (report.notDone > 0)
            notify(qsTr("已停止：%1").arg(report.summary), report.failed > 0 ? OVToast.Error : OVToast.Information);
        else if (report.failed > 0)
            //: Devices of a batch that failed.
            notify(qsTr("%n 台设备未成功，请查看修改结果", "", report.failed), OVToast.Error);
        else if (report.succeeded === 0)
            notify(report.summary, OVToast.Information);
        else
            notify(batch.changesAddresses ? qsTr("已修改 %n 台设备的IP地址", "", report.succeeded)
                                        : qsTr("已初始化 %n 台设备", "", report.succeeded), OVToast.Success);
    }

    visible: false

    AccountKeeper {
        id: keeper
        batches: root.batches
    }
    Connections {
        target: root.batch

        function onResulted(identities) {
            root.deviceTable.refreshDevices(identities);
        }
        function onFinished() {
            root.notifyEnd();
        }
    }
    Connections {
        target: root.batches

        function onRetried(earlier, again) {
            if (earlier === root.batch)
                root.batch = again;
        }
        function onCurrentChanged() {
            // The panel of batches can restore addresses, too.
            if (root.batches.current.changesAddresses)
                root.batch = root.batches.current;
        }
    }
    // qmllint disable unqualified
    OVOnDemand {
        id: initialising
        visible: false
        sourceComponent: InitialiseDialog {
            id: list
            onClosed: root.moveFocusFromButton()
            onConfirmed: {
                const dialog = firstPassword.instance();
                dialog.load(list.count);
                dialog.open();
            }
        }
    }
    OVOnDemand {
        id: firstPassword
        visible: false
        sourceComponent: FirstPasswordDialog {
            id: account
            deviceFactory: root.deviceFactory
            onClosed: root.moveFocusFromButton()
            onConfirmed: {
                const list = initialising.instance();
                const identities = list.chosen();
                const name = account.account;
                const word = account.password;
                const keeping = account.keeping;
                account.close();
                list.close();
                root.sendFirstPasswords(identities, name, word, keeping);
            }
        }
    }
    OVOnDemand {
        id: readdressing
        visible: false
        sourceComponent: ModifyIPDialog {
            id: addresses
            deviceFactory: root.deviceFactory
            onClosed: root.moveFocusFromButton()
            onConfirmed: {
                addresses.close();
                root.sendAddresses(addresses);
            }
        }
    }
    // qmllint enable unqualified
}
