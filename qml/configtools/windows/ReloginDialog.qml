// Asks for the account of a device that refused a login, and keeps the new password with the device.
import QtQuick
import configtools

OVDialog {
    id: root

    required property var deviceFactory
    signal refused(string message)
    /// The waiting operation goes on with these; with two empty texts it is given up. Each ask() is answered once.
    signal answered(string account, string password)

    property string mac
    property string ipport
    property bool waiting: false
    property string faultKind
    property string fault

    function ask(mac, ipport, account) {
        answer("", "");
        root.mac = mac;
        root.ipport = ipport;
        accountField.text = account;
        passwordField.text = "";
        forget();
        waiting = true;
        open();
    }

    function answer(account, password) {
        if (!waiting)
            return;
        waiting = false;
        passwordField.text = "";
        answered(account, password);
    }

    function forget() {
        faultKind = "";
        fault = "";
    }

    function check() {
        faultKind = accountField.text === "" ? "account" : passwordField.text === "" ? "password" : "";
        fault = faultKind === "account" ? qsTr("请输入账号") : faultKind === "password" ? qsTr("请输入密码") : "";
        if (fault !== "")
            (faultKind === "account" ? accountField : passwordField).forceActiveFocus();
        return fault === "";
    }

    width: Theme.addDeviceWidth
    objectName: "reloginDialog"
    title: qsTr("重新登录")
    onOpened: (accountField.text === "" ? accountField : passwordField).forceActiveFocus()
    onRejected: answer("", "")
    onAccepted: {
        if (!check()) {
            refused(fault);
            return;
        }
        const account = accountField.text;
        const password = passwordField.text;
        close();
        const kept = deviceFactory.updataDeviceInfo("dh", "password", password, mac, ipport);
        answer(kept ? account : "", kept ? password : "");
    }

    Column {
        width: parent.width
        spacing: Theme.controlGap

        OVNotice {
            width: parent.width
            iconColor: Theme.colours.warn
            iconName: "alert"
            text: qsTr("设备 %1 没有接受登录，请输入它的账号和密码。").arg(root.ipport)
        }
        OVFormRow {
            width: parent.width
            label: qsTr("用户名")

            OVTextField {
                id: accountField
                width: parent.width
                accessibleName: qsTr("用户名")
                errorText: root.faultKind === "account" ? root.fault : ""
                maximumLength: 63
                objectName: "accountField"
                onEdited: root.forget()
            }
        }
        OVFormRow {
            width: parent.width
            label: qsTr("密码")

            OVTextField {
                id: passwordField
                width: parent.width
                accessibleName: qsTr("密码")
                errorText: root.faultKind === "password" ? root.fault : ""
                maximumLength: 63
                objectName: "devicePasswordField"
                secret: true
                onEdited: root.forget()
            }
        }
    }
}
