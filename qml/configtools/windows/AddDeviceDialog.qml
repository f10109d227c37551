// Input of one device to add, by IP address or P2P ID. The dialog adds nothing: after `confirmed` the owner sets `busy`
// and adds the device, then sets `busy` to false and closes the dialog or calls showResult(). The user may close the
// dialog before that, which the owner treats as a cancellation.
import QtQuick
import configtools

OVDialog {
    id: root

    property int mode: DeviceAdding.IP  // DeviceAdding.IP or DeviceAdding.P2P
    required property int defaultPort  // port that is filled in
    readonly property bool p2p: mode === DeviceAdding.P2P
    /// `device`: map of "mode", "address" (or the P2P ID), "port" (text), "account", "password" and "note".
    /// `isFavourite`: save it as a favourite after success.
    signal confirmed(var device, bool isFavourite)

    property string faultKind  // field of the error: "id", "address", "account", "password" or "port"; "" for none
    property string fault  // error text, "" for none

    /// Opens the dialog in this mode with empty fields, except the user name "admin" and the port `defaultPort`.
    function begin(mode) {
        root.mode = mode;
        busy = false;
        addressField.text = "";
        idField.text = "";
        accountField.text = "admin";
        passwordField.text = "";
        portField.text = defaultPort;
        favouriteBox.checked = false;
        noteField.text = "";
        clearError();
        open();
    }

    /// Opens the dialog for a favourite (see FavouriteListModel.device()) whose password is asked for and saved.
    function beginFavourite(device) {
        begin(device.mode);
        addressField.text = p2p ? "" : device.address;
        idField.text = p2p ? device.address : "";
        accountField.text = device.account;
        portField.text = device.port;
        noteField.text = device.note;
        favouriteBox.checked = true;
    }

    /// Removes the error from its field.
    function clearError() {
        faultKind = "";
        fault = "";
    }

    /// Shows why the device was not added: an unknown account, a wrong password and a listed address at the field,
    /// another reason above the buttons. `code`: a LoginResult. `error`: its text; with "" the dialog shows nothing and
    /// stays open. Requires that `busy` is false.
    function showResult(code, error) {
        faultKind = code === DeviceAdding.NoSuchAccount ? "account" : code === DeviceAdding.WrongPassword ? "password"
            : code === DeviceAdding.AlreadyListed ? "address" : "";
        fault = error;
        if (error === "")
            return;
        refuse(error);
        if (faultKind === "password")
            passwordField.selectAll();
    }

    /// Sets the error text and its field, see `faultKind`.
    function note(kind, message) {
        faultKind = kind;
        fault = message;
    }

    /// Sets the error of the first invalid field, or no error.
    function check() {
        clearError();
        if (p2p && idField.text === "")
            note("id", qsTr("请输入P2P ID"));
        else if (!p2p && !addressField.acceptable)
            note("address", qsTr("请输入正确的IP"));
        else if (accountField.text === "")
            note("account", qsTr("请输入账号"));
        else if (passwordField.text === "")
            note("password", qsTr("请输入密码"));
        else if (portField.text === "")
            note("port", qsTr("请输入端口"));
        else if (!portField.acceptable)
            note("port", qsTr("端口范围为1到65535"));
    }

    cancellable: true
    wantedWidth: Theme.addDeviceWidth
    leastHeight: Theme.addDeviceHeight
    objectName: "addDeviceDialog"
    title: qsTr("手动添加设备")
    onClosed: passwordField.text = ""  // keeps the password no longer than needed
    onOpened: {
        const first = p2p ? idField : addressField;
        (first.text !== "" ? passwordField : first).forceActiveFocus();
    }
    onAccepted: {
        check();
        if (fault !== "") {
            refuse(fault);
            return;
        }
        confirmed({
            mode: mode, address: p2p ? idField.text : AddressTools.plainAddress(addressField.text),
            account: accountField.text, password: passwordField.text, port: String(Number(portField.text)),
            note: noteField.text
        }, favouriteBox.checked);
    }

    footContent: OVCheckBox {
        id: favouriteBox
        anchors.verticalCenter: parent?.verticalCenter
        objectName: "favouriteBox"
        text: qsTr("添加到收藏夹")
        onToggled: if (checked) noteField.forceActiveFocus()
    }

    Column {
        width: parent.width
        spacing: Theme.unit

        Row {
            spacing: Theme.pageMargin

            OVField {
                width: root.availableWidth - 3 * Theme.pageMargin - Theme.portFieldWidth
                label: root.p2p ? qsTr("P2P ID") : qsTr("IP")

                OVAddressField {
                    id: addressField
                    width: parent.width
                    accessibleName: qsTr("IP")
                    errorText: root.faultKind === "address" ? root.fault : ""
                    objectName: "addressField"
                    placeholderText: "192.168.1.64"
                    visible: !root.p2p
                    onEdited: root.clearError()
                }
                OVTextField {
                    id: idField
                    width: parent.width
                    accessibleName: qsTr("P2P ID")
                    errorText: root.faultKind === "id" ? root.fault : ""
                    maximumLength: 64
                    objectName: "p2pIdField"
                    textFont: Theme.figureFont
                    removedCharacters: /\s/g
                    visible: root.p2p
                    onEdited: root.clearError()
                }
            }
            OVField {
                width: Theme.portFieldWidth
                label: qsTr("端口")

                OVPortField {
                    id: portField
                    width: parent.width
                    accessibleName: qsTr("端口")
                    errorText: root.faultKind === "port" ? root.fault : ""
                    objectName: "portField"
                    onEdited: root.clearError()
                }
            }
        }
        Row {
            spacing: Theme.pageMargin

            OVField {
                width: (root.availableWidth - 3 * Theme.pageMargin) / 2
                label: qsTr("用户名")

                OVTextField {
                    id: accountField
                    width: parent.width
                    accessibleName: qsTr("用户名")
                    errorText: root.faultKind === "account" ? root.fault : ""
                    maximumLength: 63
                    objectName: "accountField"
                    onEdited: root.clearError()
                }
            }
            OVField {
                width: (root.availableWidth - 3 * Theme.pageMargin) / 2
                label: qsTr("密码")

                OVTextField {
                    id: passwordField
                    width: parent.width
                    accessibleName: qsTr("密码")
                    errorText: root.faultKind === "password" ? root.fault : ""
                    maximumLength: 63
                    objectName: "devicePasswordField"
                    secret: true
                    onEdited: root.clearError()
                }
            }
        }
        OVField {
            width: parent.width
            label: qsTr("备注")
            visible: favouriteBox.checked

            OVTextField {
                id: noteField
                width: parent.width
                accessibleName: qsTr("备注")
                maximumLength: 50
                objectName: "noteField"
                placeholderText: qsTr("最多50个字符")
            }
        }
    }
}
