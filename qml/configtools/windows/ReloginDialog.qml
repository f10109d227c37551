// Asks for another account after a refused login and shows the device's response. On OK it sets the password of the
// row; the owner sets the user name of the row, logs in again and reports the result to LoginMemory.note(), which
// stores the account if the user has chosen that.
import QtQuick
import configtools

OVDialog {
    id: root

    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    /// Emitted once for each ask(). Two empty texts: the dialog was cancelled or closed, the device has no row any more,
    /// or another ask() followed.
    signal responded(string account, string password)

    property string mac  // of the row, "" if unknown
    property string ipport  // "address:port"
    property bool waiting: false  // `responded` was not emitted yet for the last ask()
    property string faultKind  // field of the error: "account" or "password"; "" for none
    property string fault  // error text, "" for none
    property int result: 0  // of the refused login, a LoginResult
    property int wrongTimes: 0  // number of passwords refused by this device since its last successful login

    /// Opens the dialog. `account` is the refused user name, `result` the LoginResult of the refused login.
    function ask(mac, ipport, account, result) {
        finish("", "");
        root.mac = mac;
        root.ipport = ipport;
        accountField.text = account;
        passwordField.text = "";
        followingBox.checked = false;
        // A stored account that was refused would be refused again after the next search.
        keepBox.checked = LoginMemory.accounts !== null && deviceFactory.accountOf("dh", ipport).isStored;
        root.result = result;
        wrongTimes = LoginMemory.timesWrong(ipport);
        showResponse();
        waiting = true;
        open();
    }

    /// Emits `responded` if it was not emitted yet.
    function finish(account, password) {
        if (!waiting)
            return;
        waiting = false;
        passwordField.text = "";
        responded(account, password);
    }

    /// Shows the device's response at the field that it concerns.
    function showResponse() {
        faultKind = result === 1 ? "account" : result === LoginMemory.wrongPassword ? "password" : "";
        fault = faultKind === "password" && wrongTimes > 0 ? qsTr("密码错误，已 %n 次", "", wrongTimes)
            : faultKind === "" ? "" : deviceFactory.getErrorName(result);
    }

    /// Removes the error from its field.
    function clearError() {
        faultKind = "";
        fault = "";
    }

    /// Sets the error of the first empty field. Returns whether there is none.
    function check() {
        faultKind = accountField.text === "" ? "account" : passwordField.text === "" ? "password" : "";
        fault = faultKind === "account" ? qsTr("请输入账号") : faultKind === "password" ? qsTr("请输入密码") : "";
        return fault === "";
    }

    wantedWidth: Math.max(Theme.addDeviceWidth,
                          keepBox.x + Math.max(keepBox.implicitWidth, followingBox.implicitWidth) + 2 * contentMargin)
    objectName: "reloginDialog"
    title: qsTr("重新登录")
    onOpened: (accountField.text === "" ? accountField : passwordField).forceActiveFocus()
    onClosed: finish("", "")  // the owner has closed it; the password is kept no longer than needed
    onRejected: finish("", "")
    onAccepted: {
        if (!check()) {
            refuse(fault);
            return;
        }
        const account = accountField.text;
        const password = passwordField.text;
        waiting = false;  // responded() follows below, after the dialog has closed
        passwordField.text = "";
        close();
        if (followingBox.checked || keepBox.checked)
            LoginMemory.setPendingAccount(ipport, account, password, followingBox.checked, keepBox.checked, deviceFactory);
        const kept = deviceFactory.updataDeviceInfo("dh", "password", password, mac, ipport);
        responded(kept ? account : "", kept ? password : "");
    }

    Column {
        width: parent.width
        spacing: Theme.controlGap

        OVNotice {
            width: parent.width
            iconColor: Theme.colours.warn
            iconName: "alert"
            text: qsTr("设备 %1 没有接受登录，请输入它的账号和密码。").arg(root.ipport)
                + (root.result > LoginMemory.wrongPassword ? "\n" + qsTr("设备的应答：%1")
                   .arg(root.deviceFactory.getErrorName(root.result)) : "")
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
                onEdited: root.clearError()
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
                onEdited: root.clearError()
            }
        }
        OVParagraph {
            x: Theme.formLabelWidth + Theme.unit
            width: parent.width - x
            color: Theme.colours.sub
            font: Theme.hintFont
            objectName: "triesHint"
            text: qsTr("设备没有报告剩余的尝试次数。继续输错可能锁定账户。")
            visible: root.wrongTimes > 0
        }
        OVCheckBox {
            id: keepBox
            x: Theme.formLabelWidth + Theme.unit
            objectName: "keepBox"
            text: qsTr("保存为此设备的账号")
            toolTip: qsTr("登录成功后，以后登录这台设备都使用此账号")
            visible: LoginMemory.accounts !== null
        }
        OVCheckBox {
            id: followingBox
            x: Theme.formLabelWidth + Theme.unit
            objectName: "followingBox"
            text: qsTr("之后的设备也使用此账号")
            toolTip: qsTr("登录成功后，没有自己账号的设备都用此账号代替搜索设置中的账号，批处理也是如此，直到程序退出或搜索设置中的账号改变")
        }
    }
}
