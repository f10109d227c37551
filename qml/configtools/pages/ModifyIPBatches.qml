// First passwords and new addresses: their dialogs, and sending them device by device.
import QtQuick
import configtools

Item {
    id: root

    required property BusyState busyState
    required property var deviceFactory
    required property var deviceTable  // a DeviceTableModel
    readonly property alias running: batch.running
    readonly property alias progress: batch.progress
    readonly property alias current: batch.current
    property string title  // of the batch
    property string runningText
    signal said(string message, int kind)

    /// Whether devices may be changed now; otherwise a notice names the running work.
    function mayBegin() {
        const refusal = busyState.refusal(BusyState.ChangeAddress);
        if (refusal !== "")
            said(refusal, OVToast.Error);
        return refusal === "";
    }

    function initialise() {
        if (!mayBegin())
            return;
        const rows = deviceTable.checkedRows().filter(row => !row.state);
        if (rows.length === 0) {
            said(qsTr("请选择一台未初始化的设备"), OVToast.Error);
            return;
        }
        const dialog = initialising.wanted();
        dialog.load(rows);
        dialog.open();
    }

    /// New addresses for the ticked rows.
    function modifyChecked() {
        const rows = deviceTable.checkedRows();
        if (rows.length === 0)
            said(qsTr("请选择一台设备"), OVToast.Error);
        else
            askForAddresses(rows, true);
    }

    function modifyRow(row) {
        const values = deviceTable.get(row);
        if (UpgradeTools.isRunning(values.upgraderes ?? UpgradeTools.None))
            said(qsTr("设备正在升级，不能修改IP地址"), OVToast.Error);
        else
            askForAddresses([values], false);
    }

    function askForAddresses(rows, isBatch) {
        if (!mayBegin())
            return;
        const dialog = readdressing.wanted();
        dialog.load(rows, isBatch);
        dialog.open();
    }

    /// Calls `request` for each row, shows its result as it comes, and reads the whole table at the end.
    function run(rows, title, text, request) {
        root.title = title;
        runningText = rows.length > 1 ? text + qsTr("（按Esc停止）") : text;
        batch.start(rows.length, i => {
            request(rows[i], i);
            deviceTable.refreshDevice(rows[i].identity);
        }, i => rows[i].ipport, done => {
            const failed = rows.slice(0, done).filter(row => deviceFactory.getDeviceDetail("dh", row.identity).res !== 0).length;
            for (const row of rows.slice(done))
                deviceFactory.updataDeviceInfo("dh", "res", BatchReport.NotDone, row.identity, row.ipport);
            deviceTable.refresh();
            // What the rows show of these devices has changed: their state, or the address that they respond at.
            deviceFactory.refreshDevices("dh", rows.slice(0, done).map(row => row.identity));
            if (done < rows.length)
                said(qsTr("已停止，完成 %1 / %2").arg(done).arg(rows.length), OVToast.Information);
            if (failed > 0)
                //: Of the devices of a batch, those whose result is a failure.
                said(qsTr("%n 台设备未成功，请查看修改结果", "", failed), OVToast.Error);
            else if (done === rows.length)
                said(qsTr("%n 台设备已完成", "", done), OVToast.Success);
        });
    }

    function sendFirstPasswords(rows, account, password) {
        run(rows, qsTr("初始化"), qsTr("正在初始化设备…"),
            row => deviceFactory.setInitAccount("dh", row.identity, account, password));
    }

    function sendAddresses(dialog) {
        const rows = dialog.rows;
        const dhcp = dialog.dhcp;
        const mask = dialog.mask;
        const gateway = dialog.gateway;
        const addresses = rows.map((_, i) => dialog.plan.addressOf(i));
        run(rows, qsTr("修改IP地址"), qsTr("正在修改IP地址…"), (row, i) => {
            if (dhcp)
                deviceFactory.modifyIP("dh", row.identity, "", "", "", true);
            else
                deviceFactory.modifyIP("dh", row.identity, addresses[i], mask, gateway, false);
        });
    }

    visible: false

    OVBatch {
        id: batch
    }

    // qmllint disable unqualified
    OVOnDemand {
        id: initialising
        visible: false
        sourceComponent: InitialiseDialog {
            id: list
            onConfirmed: {
                const dialog = firstPassword.wanted();
                dialog.load(list.count);
                dialog.open();
            }
            onRefused: message => root.said(message, OVToast.Error)
        }
    }
    OVOnDemand {
        id: firstPassword
        visible: false
        sourceComponent: FirstPasswordDialog {
            id: account
            deviceFactory: root.deviceFactory
            onConfirmed: {
                const list = initialising.wanted();
                const rows = list.chosen();
                const name = account.account;
                const word = account.password;
                account.close();
                list.close();
                root.sendFirstPasswords(rows, name, word);
            }
            onRefused: message => root.said(message, OVToast.Error)
        }
    }
    OVOnDemand {
        id: readdressing
        visible: false
        sourceComponent: ModifyIPDialog {
            id: addresses
            deviceFactory: root.deviceFactory
            onConfirmed: {
                addresses.close();
                root.sendAddresses(addresses);
            }
            onRefused: message => root.said(message, OVToast.Error)
        }
    }
    // qmllint enable unqualified
}
