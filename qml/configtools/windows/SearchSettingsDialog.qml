// Edits a copy of the search settings: networks and account. It stores nothing: the owner reads values() on `confirmed`
// and closes the dialog.
import QtQuick
import configtools

OVDialog {
    id: root

    /// An AddressTools.RangeError; no error while the address range is not searched.
    readonly property int fault: otherBox.checked
        ? AddressTools.searchRangeError(startField.text, endField.text) : AddressTools.NoFault
    signal confirmed  // the input is valid

    /// Loads settings into the fields, in the form of SearchSettings.read(); the caller opens the dialog.
    function load(settings) {
        localBox.checked = settings.localDomain;
        otherBox.checked = settings.otherDomain;
        startField.text = settings.startIP;
        endField.text = settings.endIP;
        userField.text = settings.userName;
        passwordField.text = settings.password;
        loginBox.checked = settings.logsIn;
    }

    /// Fills in the stored password, which was not available at load(). A typed password is kept.
    function supplyPassword(password) {
        if (passwordField.text === "")
            passwordField.text = password;
    }

    /// Returns the settings of the fields, in the form of SearchSettings.read().
    function values() {
        return {
            localDomain: localBox.checked,
            otherDomain: otherBox.checked,
            startIP: startField.text,
            endIP: endField.text,
            userName: userField.text,
            password: passwordField.text,
            logsIn: loginBox.checked
        };
    }

    /// The error text of an AddressTools.RangeError; "" for no error.
    function textOf(fault) {
        switch (fault) {
        case AddressTools.BeginAboveEnd:
            return qsTr("起始ip不可以大于结束ip");
        case AddressTools.TooManySegments:
            return qsTr("仅支持跨16个网段搜索");
        case AddressTools.BeginIsNoAddress:
            return qsTr("请输入正确的起始IP");
        case AddressTools.EndIsNoAddress:
            return qsTr("请输入正确的结束IP");
        default:
            return "";
        }
    }

    objectName: "searchSettingsDialog"
    okText: qsTr("搜索")
    title: qsTr("搜索设置")
    onAccepted: fault === AddressTools.NoFault ? confirmed() : refuse(textOf(fault))
    onClosed: passwordField.text = ""
    onOpened: localBox.forceActiveFocus()

    Column {
        width: parent.width
        spacing: Theme.pageMargin

        Column {
            width: parent.width

            OVCheckBox {
                id: localBox
                objectName: "localDomainBox"
                text: qsTr("搜索本地网段")
            }
            OVCheckBox {
                id: otherBox
                objectName: "otherDomainBox"
                text: qsTr("搜索其他网段")
            }
            Column {
                id: range
                x: Theme.boxSize + Theme.unit
                width: parent.width - x
                enabled: otherBox.checked
                spacing: Theme.controlGap
                topPadding: Theme.half

                OVFormRow {
                    width: parent.width
                    label: qsTr("起始IP")
                    labelWidth: Theme.formLabelWidth - range.x

                    OVAddressField {
                        id: startField
                        width: parent.width
                        accessibleName: qsTr("起始IP")
                        errorText: root.fault === AddressTools.BeginIsNoAddress ? root.textOf(root.fault) : ""
                        objectName: "startIpField"
                    }
                }
                OVFormRow {
                    width: parent.width
                    label: qsTr("结束IP")
                    labelWidth: Theme.formLabelWidth - range.x

                    OVAddressField {
                        id: endField
                        width: parent.width
                        accessibleName: qsTr("结束IP")
                        // Both addresses may be invalid; `fault` is the first error.
                        errorText: !acceptable ? root.textOf(AddressTools.EndIsNoAddress)
                            : root.fault !== AddressTools.BeginIsNoAddress ? root.textOf(root.fault) : ""
                        objectName: "endIpField"
                    }
                }
            }
        }
        Rectangle {
            width: parent.width
            height: Theme.line
            color: Theme.colours.line
        }
        Column {
            width: parent.width
            spacing: Theme.controlGap

            OVFormRow {
                width: parent.width
                label: qsTr("用户名")

                OVTextField {
                    id: userField
                    width: parent.width
                    accessibleName: qsTr("用户名")
                    maximumLength: 63
                    objectName: "userField"
                }
            }
            OVFormRow {
                width: parent.width
                label: qsTr("密码")

                Column {
                    width: parent.width
                    spacing: Theme.half

                    OVTextField {
                        id: passwordField
                        width: parent.width
                        accessibleName: qsTr("密码")
                        maximumLength: 63
                        objectName: "passwordField"
                        secret: true
                    }
                    OVParagraph {
                        width: parent.width
                        color: Theme.colours.faint
                        font: Theme.hintFont
                        text: qsTr("登录搜索到的设备时默认使用此账号")
                    }
                }
            }
            OVFormRow {
                width: parent.width
                label: ""

                Column {
                    width: parent.width
                    spacing: Theme.half

                    OVCheckBox {
                        id: loginBox
                        objectName: "loginBox"
                        text: qsTr("搜索时用此账号登录设备")
                    }
                    OVParagraph {
                        width: parent.width
                        color: Theme.colours.faint
                        font: Theme.hintFont
                        text: qsTr("读取型号、版本号和MAC。每台设备都会收到此账号；密码错误的设备不会再次尝试。")
                    }
                }
            }
        }
    }
}
