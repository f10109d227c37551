// Adds or edits a stored account. It stores the account itself and changes no password on a device. A stored password
// is not shown; an empty field keeps it.
import QtQuick
import configtools

OVDialog {
    id: root

    required property AccountList accounts  // stores the account
    property string before  // current name, "" for a new account
    property bool tried: false  // OK was pressed: the first incomplete field shows its error
    /// The first incomplete field: "name", "account" or "password"; "" for none or before OK.
    readonly property string faulty: !tried ? "" : nameField.text.trim() === "" ? "name"
        : accountField.text === "" ? "account" : before === "" && passwordField.text === "" ? "password" : ""
    signal saved(string name)  // the account with this name is stored; the dialog has closed

    /// Opens the dialog. `name` is the account to change, "" for a new one; `account` is its user name.
    function edit(name, account) {
        before = name;
        tried = false;
        nameField.text = name;
        accountField.text = account;
        passwordField.text = "";
        open();
    }

    wantedWidth: Theme.addDeviceWidth
    objectName: "accountDialog"
    title: before === "" ? qsTr("添加账号") : qsTr("修改账号")
    onAccepted: {
        tried = true;
        const failure = accounts.put(before, nameField.text, accountField.text, passwordField.text);
        if (failure !== "") {
            refuse(failure);
            return;
        }
        const name = nameField.text.trim();
        close();
        saved(name);
    }
    onClosed: passwordField.text = ""  // keeps the password in memory no longer than needed
    onOpened: (before === "" ? nameField : passwordField).forceActiveFocus()

    Column {
        width: parent.width
        spacing: Theme.controlGap

        OVFormRow {
            width: parent.width
            label: qsTr("名称")

            OVTextField {
                id: nameField
                width: parent.width
                accessibleName: qsTr("名称")
                errorText: root.faulty === "name" ? qsTr("请输入名称") : ""
                maximumLength: 63
                objectName: "accountNameField"
                placeholderText: qsTr("例如：一号楼")
            }
        }
        OVFormRow {
            width: parent.width
            label: qsTr("用户名")

            OVTextField {
                id: accountField
                width: parent.width
                accessibleName: qsTr("用户名")
                errorText: root.faulty === "account" ? qsTr("请输入用户名") : ""
                maximumLength: 63
                objectName: "accountUserField"
            }
        }
        OVFormRow {
            width: parent.width
            label: qsTr("密码")

            OVTextField {
                id: passwordField
                width: parent.width
                accessibleName: qsTr("密码")
                errorText: root.faulty === "password" ? qsTr("请输入密码") : ""
                maximumLength: 63
                objectName: "accountPasswordField"
                placeholderText: root.before === "" ? "" : qsTr("留空则不修改")
                secret: true
            }
        }
        OVParagraph {
            width: parent.width
            color: Theme.colours.faint
            font: Theme.hintFont
            text: qsTr("这里只保存登录时使用的账号，不会修改设备上的密码。")
        }
    }
}
