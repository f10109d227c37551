// Manages the stored accounts. If opened for devices, it also assigns the selected account to them, which changes no
// password on a device. Changes are stored immediately.
import QtQuick
import configtools

OVDialog {
    id: root

    required property AccountList accounts  // the stored accounts, and the default account in row 0
    property var devices: []  // identities or "address:port" of the devices to assign an account to; empty: manage only
    /// Before a retry: user names of the accounts that these devices have refused, as one text for the user; otherwise
    /// "".
    property string refused
    property string edited  // name of the last account added or changed since the dialog was opened; "" for none
    readonly property bool choosing: devices.length > 0  // an account is assigned
    /// Values of the selected row: "identity", "name" ("" for the default account), "account" (user name),
    /// "deviceCount" and "isDefault"; empty for none.
    readonly property var current: shownRow(table.currentIndex, accounts.count)
    /// The selected row is a stored account, not the default one.
    readonly property bool isOwn: (current.identity ?? "") !== "" && !current.isDefault
    signal notify(string message, int severity)  // show this message; severity: an OVToast.Severity
    signal chosen  // the account was assigned to the devices; emitted before the dialog closes

    /// The values of a row. `count` is unused: with it, a binding is evaluated again when the rows change.
    function shownRow(index, count) {
        return accounts.get(index);
    }

    /// Opens the dialog without devices.
    function manage() {
        choose([]);
    }

    /// Opens the dialog for devices and selects the account that the first one uses; the default account if that one is
    /// only in its row and not stored. `devices`: see the property.
    function choose(devices) {
        refused = "";
        openFor(devices);
        table.show(devices.length > 0 ? Math.max(0, accounts.rowOfDevice(devices[0])) : 0);
    }

    /// Opens the dialog for a retry of devices that have refused their accounts. No account is selected. `refused`: see
    /// the property.
    function chooseOther(devices, refused) {
        root.refused = refused;
        openFor(devices);
        table.showNone();
    }

    /// Reads the accounts and opens the dialog for these devices.
    function openFor(devices) {
        root.devices = devices;
        edited = "";
        accounts.load();
        open();
        table.forceActiveFocus();
    }

    /// Assigns the selected account to the devices and closes the dialog. For a retry it does not accept an account
    /// that one of the devices uses, unless that is `edited`.
    function use() {
        const name = current.name ?? "";
        const isRefused = refused !== "" && devices.some(device => accounts.rowOfDevice(device) === table.currentIndex);
        if (isRefused && (name === "" || name !== edited)) {
            refuse(qsTr("设备已拒绝此账号，请选择或添加另一个账号"));
            return;
        }
        const failure = accounts.select(devices, name);
        if (failure !== "") {
            refuse(failure);
            return;
        }
        chosen();
        const unknown = name === "" ? 0 : accounts.countUnidentified(devices);
        close();
        notify((name === "" ? qsTr("%n 台设备使用默认账号", "", devices.length)
                          : qsTr("%n 台设备使用账号“%1”", "", devices.length).arg(name))
            + (unknown > 0 ? qsTr("；其中 %n 台没有MAC和UUID，只用到下次搜索", "", unknown) : ""), OVToast.Success);
    }

    /// Opens the dialog of an account, see AccountDialog.edit().
    function edit(name, account) {
        editing.instance().edit(name, account);
    }

    /// Asks, then removes the selected account. Its devices use the default account afterwards.
    function askToRemove() {
        const box = removing.instance();
        box.name = current.name;
        box.show(qsTr("删除账号“%1”？").arg(current.name) + (current.deviceCount > 0
            ? qsTr("使用它的 %n 台设备以后用默认账号登录。", "", current.deviceCount) : ""), OVMessageBox.DangerQuestion);
    }

    /// Asks, then removes all stored accounts that no device uses.
    function askToRemoveUnused() {
        const names = accounts.unused;
        const shown = 5;
        const box = removing.instance();
        box.name = "";
        box.show(qsTr("删除没有设备使用的 %n 个账号？", "", names.length) + "\n"
            + names.slice(0, shown).join(qsTr("、")) + (names.length > shown ? "…" : ""), OVMessageBox.DangerQuestion);
    }

    wantedWidth: Theme.initialiseWidth
    hasCancel: choosing
    objectName: "accountsDialog"
    okEnabled: !choosing || (current.identity ?? "") !== ""
    okText: !choosing ? qsTr("关闭") : refused !== "" ? qsTr("用于 %n 台设备并重试", "", devices.length)
        : qsTr("用于 %n 台设备", "", devices.length)
    title: choosing ? qsTr("选择账号") : qsTr("账号管理")
    onAccepted: choosing ? use() : close()

    Column {
        width: parent.width
        spacing: Theme.controlGap

        OVNotice {
            width: parent.width
            iconColor: Theme.colours.warn
            iconName: "alert"
            objectName: "accountsProblem"
            text: root.accounts.problem
            visible: text !== ""
        }
        OVNotice {
            width: parent.width
            iconColor: Theme.colours.warn
            iconName: "alert"
            objectName: "accountsRefused"
            text: qsTr("设备拒绝了账号 %1。请选择或添加另一个账号。").arg(root.refused)
            visible: root.refused !== ""
        }
        OVTable {
            id: table
            width: parent.width
            height: Theme.batchPreviewHeight
            checkable: false
            columns: [
                {key: "name", title: qsTr("名称"), width: Theme.columnModel, stretch: 1, cell: nameCell},
                {key: "account", title: qsTr("账号"), width: Theme.columnModel, stretch: 1},
                {key: "deviceCount", title: qsTr("设备数"), width: Theme.columnAccount, cell: countCell}
            ]
            focus: true
            model: root.accounts
            objectName: "accountsTable"
            onRowActivated: {
                if (root.choosing)
                    root.accept();
                else if (root.isOwn)
                    root.edit(root.current.name, root.current.account);
            }
        }
        OVActionRow {
            OVButton {
                objectName: "addAccountButton"
                text: qsTr("添加")
                onClicked: root.edit("", "")
            }
            OVButton {
                enabled: root.isOwn
                objectName: "changeAccountButton"
                text: qsTr("修改")
                toolTip: enabled ? "" : qsTr("默认账号在“搜索设置”中修改")
                onClicked: root.edit(root.current.name, root.current.account)
            }
            OVButton {
                enabled: root.isOwn
                kind: OVButton.Danger
                objectName: "removeAccountButton"
                text: qsTr("删除")
                onClicked: root.askToRemove()
            }
            OVButton {
                kind: OVButton.Danger
                objectName: "removeUnusedButton"
                text: qsTr("删除未使用的账号")
                toolTip: qsTr("没有为任何设备选定的账号")
                visible: !root.choosing && root.accounts.unused.length > 0
                onClicked: root.askToRemoveUnused()
            }
        }
        OVParagraph {
            width: parent.width
            color: Theme.colours.faint
            font: Theme.hintFont
            text: qsTr("每台设备只用一个账号登录：为它选定的账号，否则为默认账号。其他账号不会自动尝试。")
        }
    }

    Component {
        id: nameCell
        OVTableTextCell {
            color: row?.isDefault ? Theme.colours.sub : Theme.colours.text
            text: row?.isDefault ? qsTr("默认账号") : row?.name ?? ""
        }
    }
    Component {
        id: countCell
        OVTableTextCell {
            readonly property bool isUnused: row?.deviceCount === 0 && !row.isDefault

            color: isUnused ? Theme.colours.sub : Theme.colours.text
            font: isUnused ? Theme.bodyFont : Theme.figureFont
            text: row?.isDefault ? "—" : isUnused ? qsTr("未使用") : row?.deviceCount ?? ""
        }
    }

    // qmllint disable unqualified
    OVOnDemand {
        id: editing
        visible: false
        sourceComponent: AccountDialog {
            accounts: root.accounts
            onSaved: name => {
                root.edited = name;
                table.show(root.accounts.rowOfName(name));
            }
        }
    }
    OVOnDemand {
        id: removing
        visible: false
        sourceComponent: OVMessageBox {
            property string name  // "" for all unused accounts
            objectName: "removeAccountQuestion"
            okText: qsTr("删除")
            title: qsTr("删除账号")
            onAccepted: {
                const failure = name === "" ? root.accounts.removeUnused() : root.accounts.remove(name);
                if (failure !== "")
                    root.refuse(failure);
            }
        }
    }
    // qmllint enable unqualified
}
