// Asks for the account and password for the initialisation of devices, and where the account is stored. It sends
// nothing: the owner reads the input on `confirmed` and closes the dialog, which clears the password.
import QtQuick
import configtools

OVDialog {
    id: root

    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    property int deviceCount: 0  // number of devices to initialise, for the text
    readonly property alias account: accountField.text  // user name
    readonly property alias password: passwordField.text
    readonly property alias keeping: keepingChoice.keeping  // an AccountList.Keeping
    /// Strength of the password: number of kinds of characters in it, 0 to 3; at least 2 is needed. The kinds are
    /// digits, letters (A to Z in both cases), and all other characters. The underscore is of no kind. Characters that
    /// the hint excludes are not refused: they count as others.
    readonly property int grade: deviceFactory.getPassWordType(passwordField.text)
    property bool tried: false  // OK was pressed: incomplete fields show errors
    readonly property int mostCharacters: 32  // of the password
    /// OK was pressed and `fault` is "": a user name and a password are given, the confirmation is equal, and the
    /// password has 8 to 32 characters of at least two kinds.
    signal confirmed

    /// Resets the input; the caller opens the dialog. `count`: number of devices.
    function load(count) {
        deviceCount = count;
        tried = false;
        keepingChoice.keeping = AccountList.ForDevices;
        accountField.text = "admin";
        clearPasswords();
    }

    /// Clears both fields, so that the password is in memory no longer than needed.
    function clearPasswords() {
        confirmationField.text = "";
        passwordField.text = "";
    }

    readonly property string weak: qsTr("请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。")
    readonly property string noAccount: qsTr("请输入用户名")
    readonly property string noPassword: qsTr("请输入密码")
    readonly property string noConfirmation: qsTr("请确认密码")
    readonly property string different: qsTr("请输入相同的密码")
    readonly property string wrongLength: qsTr("密码长度应当在8到32个字符范围内")

    /// The first error, in the user's language; "" if there is none. It is shown below its field.
    readonly property string fault: {
        const length = confirmationField.text.length;
        return grade <= 1 ? weak : account === "" ? noAccount : password === "" ? noPassword
            : length === 0 ? noConfirmation : confirmationField.text !== password ? different
            : length < 8 || length > mostCharacters ? wrongLength : "";
    }

    /// Field of the error: "account", "confirmation" or "password"; "" for none.
    readonly property string faultField: fault === "" ? "" : fault === noAccount ? "account"
        : fault === noConfirmation || fault === different ? "confirmation" : "password"

    wantedWidth: Math.max(Theme.firstPasswordWidth,
                          Theme.formLabelWidth + Theme.unit + keepingChoice.neededWidth + 2 * contentMargin)
    leastHeight: Theme.firstPasswordHeight
    objectName: "firstPasswordDialog"
    title: qsTr("初始化设置")
    onAccepted: {
        tried = true;
        if (fault !== "")
            refuse(fault);
        else
            confirmed();
    }
    onOpened: passwordField.forceActiveFocus()
    onClosed: clearPasswords()

    Column {
        width: parent.width
        spacing: Theme.controlGap

        OVLabel {
            width: parent.width
            font: Theme.titleFont
            objectName: "uninitialisedCount"
            text: qsTr("%n台未初始化设备", "", root.deviceCount)
        }
        OVFormRow {
            width: parent.width
            label: qsTr("用户名")

            OVTextField {
                id: accountField
                width: parent.width
                accessibleName: qsTr("用户名")
                errorText: root.tried && root.faultField === "account" ? root.fault : ""
                maximumLength: 63
                objectName: "firstAccountField"
            }
        }
        OVFormRow {
            width: parent.width
            label: qsTr("新密码")

            Column {
                width: parent.width
                spacing: Theme.unit

                OVTextField {
                    id: passwordField
                    width: parent.width
                    accessibleName: qsTr("新密码")
                    errorText: root.tried && root.faultField === "password" ? root.fault
                        : text.length > root.mostCharacters ? root.wrongLength : ""
                    maximumLength: 63
                    objectName: "firstPasswordField"
                    secret: true
                }
                OVStrengthBar {
                    width: parent.width
                    grade: root.grade
                }
            }
        }
        OVFormRow {
            width: parent.width
            label: qsTr("确认密码")

            OVTextField {
                id: confirmationField
                width: parent.width
                accessibleName: qsTr("确认密码")
                errorText: root.tried && root.faultField === "confirmation" ? root.fault
                    : passwordField.text.startsWith(text) ? "" : root.different
                maximumLength: 63
                objectName: "confirmationField"
                secret: true
            }
        }
        OVParagraph {
            width: parent.width
            color: Theme.colours.sub
            font: Theme.hintFont
            text: qsTr("密码8~32位,且至少包含数字、字母和常用字符中的两种(字符为除") + "'\":;&"
                + qsTr("这五个字符以外的任意可见字符)")
        }
        OVFormRow {
            width: parent.width
            label: qsTr("成功后")

            AccountKeeping {
                id: keepingChoice
                width: parent.width
            }
        }
        OVParagraph {
            width: parent.width
            color: Theme.colours.sub
            font: Theme.hintFont
            text: qsTr("设定新密码后,请在“搜索设置”中设置新密码")
            visible: root.keeping === AccountList.Unkept
        }
    }
}
