// Where a search looks and which account it uses. It holds a draft until it is accepted.
import QtQuick
import configtools

OVDialog {
    id: root

    property alias localDomain: localBox.checked
    property alias otherDomain: otherBox.checked
    property alias startIP: startField.text
    property alias endIP: endField.text
    property alias userName: userField.text
    property alias password: passwordField.text
    readonly property int fault: otherDomain ? AddressTools.searchRangeFault(startIP, endIP) : 0
    readonly property var faultTexts: ["", qsTr("起始ip不可以大于结束ip"), qsTr("仅支持跨16个网段搜索"),
                                       qsTr("请输入正确的起始IP"), qsTr("请输入正确的结束IP")]
    signal refused(string message)
    signal confirmed

    objectName: "searchSettingsDialog"
    okText: qsTr("搜索")
    title: qsTr("搜索设置")
    onAccepted: fault === 0 ? confirmed() : refused(faultTexts[fault])
    onOpened: localBox.forceActiveFocus()

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
            x: Theme.pageMargin + Theme.unit
            width: parent.width - x
            enabled: otherBox.checked
            spacing: 12
            topPadding: Theme.half

            OVFormRow {
                width: parent.width
                label: qsTr("起始IP")
                labelWidth: 84

                OVAddressField {
                    id: startField
                    width: parent.width
                    accessibleName: qsTr("起始IP")
                    errorText: root.fault === 3 ? root.faultTexts[3] : ""
                    objectName: "startIpField"
                }
            }
            OVFormRow {
                width: parent.width
                label: qsTr("结束IP")
                labelWidth: 84

                OVAddressField {
                    id: endField
                    width: parent.width
                    accessibleName: qsTr("结束IP")
                    errorText: !root.otherDomain ? "" : !acceptable ? root.faultTexts[4]
                        : root.fault === 1 || root.fault === 2 ? root.faultTexts[root.fault] : ""
                    objectName: "endIpField"
                }
            }
        }
        Item {
            width: 1
            height: Theme.pageMargin
        }
        Rectangle {
            width: parent.width
            height: Theme.line
            color: Theme.colours.line
        }
        Item {
            width: 1
            height: Theme.pageMargin
        }
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
        Item {
            width: 1
            height: 12
        }
        OVFormRow {
            width: parent.width
            label: qsTr("密码")

            OVTextField {
                id: passwordField
                width: parent.width
                accessibleName: qsTr("密码")
                maximumLength: 63
                objectName: "passwordField"
                secret: true
            }
        }
        OVParagraph {
            x: 108
            width: parent.width - x
            color: Theme.colours.faint
            font: Theme.hintFont
            text: qsTr("登录搜索到的设备时默认使用此账号")
            topPadding: Theme.half
        }
    }
}
