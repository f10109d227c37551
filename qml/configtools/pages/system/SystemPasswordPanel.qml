// The tab that changes passwords: first the old password is checked, then the new one can be entered within a minute.
// It only requests; the page starts the batches.
import QtQuick
import configtools

Column {
    id: root

    required property bool available  // devices are ticked and no batch runs
    required property string unavailableText  // why no command can start, for tool tips; "" if `available`
    required property SystemPasswordTime time  // the time in which a new password can be entered
    required property var deviceFactory  // a CDeviceFactory; provides the password strength
    signal checkRequested(string password)  // check this old password on the ticked devices
    signal changeRequested(string password, int keeping)  // set this new password; keeping: an AccountList.Keeping
    signal refused(string message)  // the input is invalid; nothing was requested

    readonly property bool editorEnabled: time.open  // the new password can be entered
    // Input of the new password at the end of the time. It is restored after the next check of the old password.
    property string keptPassword
    property string keptConfirmation
    property bool restored: false  // the fields were filled with the input that was set aside

    /// A SystemTools.PasswordFault of the new password.
    readonly property int fault: SystemTools.newPasswordFault(newField.text, confirmField.text)

    /// Clears the new password, also the one that is set aside.
    function clearNewPassword() {
        newField.text = confirmField.text = keptPassword = keptConfirmation = "";
    }
    /// Called when the time has ended: clears the fields, and keeps their input in memory for restore().
    function setAside() {
        keptPassword = newField.text;
        keptConfirmation = confirmField.text;
        newField.text = confirmField.text = "";
        restored = false;
    }
    /// Called when the time begins: fills the fields with the input that was set aside.
    function restore() {
        newField.text = keptPassword;
        confirmField.text = keptConfirmation;
        restored = keptPassword + keptConfirmation !== "";
        keptPassword = keptConfirmation = "";
        newField.forceActiveFocus();
    }
    /// Clears the old password.
    function clearOldPassword() {
        oldField.text = "";
    }

    /// The error text of a SystemTools.PasswordFault.
    function textOf(fault) {
        switch (fault) {
        case SystemTools.TooWeak:
            return qsTr("请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。");
        case SystemTools.NoConfirmation:
            return qsTr("请确认密码");
        case SystemTools.NotTheSame:
            return qsTr("请输入相同的密码");
        case SystemTools.LengthOutOfRange:
            return qsTr("密码长度应当在8到32个字符范围内");
        default:
            return "";
        }
    }

    /// Requests the check of the old password, or refuses an empty one.
    function check() {
        if (oldField.text === "")
            refused(qsTr("请输入旧密码"));
        else
            checkRequested(oldField.text);
    }
    /// Requests the change to the new password, or refuses an invalid one.
    function change() {
        if (fault !== SystemTools.NoFault)
            refused(textOf(fault));
        else
            changeRequested(newField.text, keepingChoice.keeping);
    }

    spacing: Theme.pageMargin * 1.5

    onEditorEnabledChanged: editorEnabled ? restore() : setAside()

    OVSection {
        width: parent.width
        title: qsTr("第一步：验证旧密码")

        OVFormRow {
            width: parent.width
            label: qsTr("旧密码")
            labelWidth: Theme.panelLabelWidth

            Row {
                spacing: Theme.unit

                OVTextField {
                    id: oldField
                    width: Theme.passwordFieldWidth
                    accessibleName: qsTr("旧密码")
                    maximumLength: 63
                    objectName: "oldPasswordField"
                    secret: true
                    onAccepted: if (root.available) root.check()
                }
                OVActionRow {
                    OVButton {
                        enabled: root.available
                        kind: root.editorEnabled ? OVButton.Outlined : OVButton.Primary
                        objectName: "loginCheckButton"
                        text: qsTr("验证")
                        toolTip: root.unavailableText
                        onClicked: root.check()
                    }
                }
            }
        }
    }
    OVSection {
        width: parent.width
        title: qsTr("第二步：设置新密码")

        OVFormRow {
            width: parent.width
            enabled: root.editorEnabled
            label: qsTr("新密码")
            labelWidth: Theme.panelLabelWidth

            Row {
                spacing: Theme.controlGap

                OVTextField {
                    id: newField
                    width: Theme.passwordFieldWidth
                    accessibleName: qsTr("新密码")
                    enabled: root.editorEnabled
                    maximumLength: 63
                    objectName: "newPasswordField"
                    secret: true
                }
                OVStrengthBar {
                    width: Theme.strengthWidth
                    grade: root.deviceFactory.getPassWordType(newField.text)
                    visible: root.editorEnabled
                }
            }
        }
        OVFormRow {
            width: parent.width
            enabled: root.editorEnabled
            label: qsTr("确认密码")
            labelWidth: Theme.panelLabelWidth

            OVTextField {
                id: confirmField
                width: Theme.passwordFieldWidth
                accessibleName: qsTr("确认密码")
                errorText: text !== "" && text !== newField.text ? root.textOf(SystemTools.NotTheSame) : ""
                maximumLength: 63
                objectName: "confirmPasswordField"
                secret: true
                onAccepted: if (root.editorEnabled && root.available) root.change()
            }
        }
        OVParagraph {  // the rule, red if violated; a separate error line would move the button
            readonly property bool broken: newField.text !== ""
                && SystemTools.newPasswordFault(newField.text, newField.text) !== SystemTools.NoFault

            x: Theme.panelLabelWidth + Theme.unit
            width: parent.width - x
            color: broken ? Theme.colours.bad : Theme.colours.faint
            font: Theme.hintFont
            text: qsTr("密码8~32位,且至少包含数字、字母和常用字符中的两种(字符为除'\":;&这五个字符以外的任意可见字符)")
        }
        OVFormRow {
            width: parent.width
            enabled: root.editorEnabled
            label: qsTr("成功后")
            labelWidth: Theme.panelLabelWidth

            AccountKeeping {
                id: keepingChoice
                width: parent.width
            }
        }
        Row {
            x: Theme.panelLabelWidth + Theme.unit
            width: parent.width - x
            spacing: Theme.controlGap

            OVButton {
                enabled: root.editorEnabled && root.available
                kind: root.editorEnabled ? OVButton.Primary : OVButton.Outlined
                objectName: "modifyPasswordButton"
                text: qsTr("修改密码")
                onClicked: root.change()
            }
            SystemPasswordNotice {
                width: parent.width - x
                anchors.verticalCenter: parent.verticalCenter
                keeps: root.keptPassword + root.keptConfirmation !== ""
                restored: root.restored
                time: root.time
            }
        }
    }
}
