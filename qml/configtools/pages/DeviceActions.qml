// Actions of all pages on one device: details, web page, copy, favourite, note, account. They send nothing that changes
// the device. `values` is a map with the values of its row in the device list: "identity" (the unique name of the row),
// "ipport" ("address:port"), "name", "type", "model", "mac", "vision" (firmware version) and others. It comes from
// DeviceTableModel.get() or, for a device of a tree, from getDeviceDetail() of the factory.
import QtQuick
import configtools

Item {
    id: root

    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    required property var fileDialogs  // a FileDialogs: the desktop's dialogs for files and folders
    required property var webPages  // a WebPages: opens web pages of devices in the browser
    property DeviceNotes notes: null  // null: devices have no notes
    property bool ipv6: false  // the list shows IPv6 devices: no values besides those of the row are read
    property alias favouritesFolder: favourites.folder  // path of the folder of the favourites, with "/" at the end
    signal notify(string message, int severity)  // show this message; severity: an OVToast.Severity

    /// The values of the row, with those that the device reported to the search; empty for an IPv6 device.
    function detailOf(values) {
        return ipv6 ? {} : deviceFactory.getDeviceDetail("dh", values.identity);
    }

    /// Opens the dialog with all known values. It sends no request until the user asks for more values.
    function showDetail(values) {
        const dialog = detail.instance();
        dialog.load(Object.assign({}, values, detailOf(values)));
        dialog.open();
    }

    /// Writes the text of the open detail dialog to `folder`. Asks before it replaces an existing file.
    function exportDetail(folder, fileName) {
        const path = folder + "/" + fileName;
        if (!fileDialogs.exists(path)) {
            writeDetail(path);
            return;
        }
        const asked = overwriting.instance();
        asked.path = path;
        asked.show(qsTr("%1 已存在，是否覆盖？").arg(path), OVMessageBox.DangerQuestion);
    }

    /// Replaces the file without a question. Shows the path or the failure in the detail dialog.
    function writeDetail(path) {
        const dialog = detail.instance();
        if (dialog.write(path))
            dialog.inform(qsTr("已导出到 %1").arg(path), OVToast.Success);
        else
            dialog.inform(qsTr("无法写入文件 %1").arg(path), OVToast.Error);
    }

    /// Opens the web page of the device in the browser, or notifies that it has none. The web port of a device behind a
    /// tunnel is that of a second tunnel, as the tunnel in `ipport` leads to the login port.
    function openWebPage(values) {
        const known = ipv6 ? values : detailOf(values);
        const port = Number(values.ipport.slice(values.ipport.lastIndexOf(":") + 1));
        const webPort = known.loginType === "P2P" ? deviceFactory.getP2PWebPort(port) : known.httpport;
        const page = AddressTools.webPage(values.ipport, webPort ?? 0, known.https ?? false);
        if (page === "")
            notify(qsTr("这台设备没有可打开的网页"), OVToast.Error);
        else
            webPages.open(page);
    }

    /// Whether the device can have a note: it has reported a MAC or a UUID.
    function canNote(values) {
        return notes?.canNote(values) ?? false;
    }

    /// Opens the dialog of the note. Refused for a device without MAC and UUID.
    function editNote(values) {
        if (canNote(values))
            noteDialog.instance().edit(values);
        else
            notify(qsTr("设备没有报告MAC或UUID，不能添加备注"), OVToast.Refusal);
    }

    /// The address without port and without the brackets of IPv6; "" if the device has none.
    function addressOf(values) {
        return (values.ipport ?? "").replace(/:\d+$/, "").replace(/^\[|\]$/g, "");
    }

    /// Name, type, model, address and port, MAC and firmware version, separated by tabs, for the clipboard.
    function textOf(values) {
        return [values.name, values.type, values.model, values.ipport, values.mac, values.vision]
            .map(text => String(text ?? "").replace(/\s+/g, " ").trim()).join("\t");
    }

    /// Copies a text to the clipboard and notifies the user.
    function copy(text) {
        clipboard.copy(text);
        notify(qsTr("已复制到剪贴板"), OVToast.Success);
    }

    /// Opens the dialog that assigns one of the stored accounts to these devices. `devices` are identities, or texts
    /// "address:port".
    function chooseAccount(devices) {
        accounts.instance().choose(devices);
    }

    /// Saves the device as a favourite by address, with the account that a login to it uses and its name as note. A
    /// favourite that already exists for this address and port stays unchanged. Notifies the result.
    function addFavourite(values) {
        const known = deviceFactory.accountOf("dh", values.ipport);
        const address = addressOf(values);
        const port = values.ipport.slice(values.ipport.lastIndexOf(":") + 1);
        if (favourites.list()[address + "_" + port + ".json"] !== undefined) {
            notify(qsTr("%1 已在收藏夹中").arg(address), OVToast.Information);
            return;
        }
        const isSaved = favourites.save({
            mode: DeviceAdding.IP, address: address, port: port, note: values.name ?? "",
            account: known.account,
            password: known.password
        }) !== "";
        if (isSaved)
            notify(qsTr("%1 已添加到收藏夹").arg(address), OVToast.Success);
        else
            notify(qsTr("收藏无法保存，请检查程序所在文件夹的写入权限"), OVToast.Error);
    }

    visible: false

    OVClipboard {
        id: clipboard
    }
    Favourites {
        id: favourites
    }
    // qmllint disable unqualified
    OVOnDemand {
        id: detail
        visible: false
        sourceComponent: DeviceDetailDialog {
            id: dialog
            deviceFactory: root.deviceFactory
            onCopyRequested: text => {
                clipboard.copy(text);
                dialog.inform(qsTr("已复制到剪贴板"), OVToast.Success);
            }
            onExportRequested: fileName => root.fileDialogs.chooseFolder(
                qsTr("请选择文件夹"), folder => root.exportDetail(folder, fileName))
        }
    }
    OVOnDemand {
        id: accounts
        visible: false
        sourceComponent: AccountsDialog {
            accounts: LoginMemory.accounts
            onNotify: (message, severity) => root.notify(message, severity)
        }
    }
    OVOnDemand {
        id: noteDialog
        visible: false
        sourceComponent: NoteDialog {
            notes: root.notes
        }
    }
    OVOnDemand {
        id: overwriting
        visible: false
        sourceComponent: OVMessageBox {
            property string path
            objectName: "overwriteDetailQuestion"
            okText: qsTr("覆盖")
            title: qsTr("覆盖文件")
            onAccepted: root.writeDetail(path)
        }
    }
    // qmllint enable unqualified
}
