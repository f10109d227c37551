// A device to be added by hand: by its IP address or by its P2P ID. The owner logs in while the dialog is busy, and
// closes it or tells how it went.
import QtQuick
import configtools

OVDialog {
    id: root

    property int mode: DeviceAdding.IP
    property string hint  // something that is not said as an error
    signal refused(string message)
    signal confirmed(var device, bool isFavourite)

    readonly property bool p2p: mode === DeviceAdding.P2P
    property string faultKind  // of the first thing that is wrong, once it was confirmed
    property string fault

    function begin(mode) {
        root.mode = mode;
        busy = false;
        hint = "";
        addressField.text = "";
        idField.text = "";
        accountField.text = "admin";
        passwordField.text = "";
        portField.text = "37777";
        favouriteBox.checked = false;
        noteField.text = "";
        forget();
        open();
    }

    function forget() {
        faultKind = "";
        fault = "";
        hint = "";
    }

    function errorOf(kind) {
        return faultKind === kind ? fault : "";
    }

    /// Notes the first thing that is wrong. Returns whether nothing is.
    function check() {
        const port = Number(portField.text);
        const checks = [
            {kind: "id", passes: !p2p || idField.text !== "", message: qsTr("请输入P2P ID"), field: idField},
            {kind: "address", passes: p2p || addressField.acceptable, message: qsTr("请输入正确的IP"), field: addressField},
            {kind: "account", passes: accountField.text !== "", message: qsTr("请输入账号"), field: accountField},
            {kind: "password", passes: passwordField.text !== "", message: qsTr("请输入密码"), field: passwordField},
            {kind: "port", passes: portField.text !== "", message: qsTr("请输入端口"), field: portField},
            {kind: "port", passes: port > 0 && port <= 65535, message: qsTr("端口范围为1到65535"), field: portField}
        ];
        const failed = checks.find(one => !one.passes);
        faultKind = failed?.kind ?? "";
        fault = failed?.message ?? "";
        failed?.field.forceActiveFocus();
        return failed === undefined;
    }

    width: Theme.addDeviceWidth
    height: Math.max(Theme.addDeviceHeight, implicitHeight)
    objectName: "addDeviceDialog"
    title: qsTr("手动添加设备")
    onOpened: (p2p ? idField : addressField).forceActiveFocus()
    onAccepted: {
        hint = "";
        if (!check()) {
            refused(fault);
            return;
        }
        confirmed({
            mode: mode, address: p2p ? idField.text : addressField.text, account: accountField.text,
            password: passwordField.text, port: portField.text, note: noteField.text
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
        spacing: Theme.controlGap

        Row {
            spacing: Theme.pageMargin

            OVField {
                width: root.availableWidth - 3 * Theme.pageMargin - Theme.portFieldWidth
                label: root.p2p ? qsTr("P2P ID") : qsTr("IP")

                OVAddressField {
                    id: addressField
                    width: parent.width
                    accessibleName: qsTr("IP")
                    errorText: root.errorOf("address")
                    objectName: "addressField"
                    placeholderText: "192.168.1.64"
                    visible: !root.p2p
                    onEdited: root.forget()
                }
                OVTextField {
                    id: idField
                    width: parent.width
                    accessibleName: qsTr("P2P ID")
                    errorText: root.errorOf("id")
                    maximumLength: 64
                    objectName: "p2pIdField"
                    textFont: Theme.figureFont
                    unwanted: /\s/g
                    visible: root.p2p
                    onEdited: root.forget()
                }
            }
            OVField {
                width: Theme.portFieldWidth
                label: qsTr("端口")

                OVTextField {
                    id: portField
                    width: parent.width
                    accessibleName: qsTr("端口")
                    errorText: root.errorOf("port")
                    objectName: "portField"
                    textFont: Theme.figureFont
                    unwanted: /\s/g
                    validator: RegularExpressionValidator { regularExpression: /\s*[0-9]{0,5}\s*/ }
                    onEdited: root.forget()
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
                    errorText: root.errorOf("account")
                    maximumLength: 63
                    objectName: "accountField"
                    onEdited: root.forget()
                }
            }
            OVField {
                width: (root.availableWidth - 3 * Theme.pageMargin) / 2
                label: qsTr("密码")

                OVTextField {
                    id: passwordField
                    width: parent.width
                    accessibleName: qsTr("密码")
                    errorText: root.errorOf("password")
                    maximumLength: 63
                    objectName: "devicePasswordField"
                    secret: true
                    onEdited: root.forget()
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
        OVNotice {
            width: parent.width
            iconColor: Theme.colours.warn
            iconName: "alert"
            objectName: "addHint"
            text: root.hint
            visible: root.hint !== ""
        }
    }
}
