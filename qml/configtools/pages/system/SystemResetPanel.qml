// The tab with the factory reset of the ticked devices.
import QtQuick
import configtools

OVSection {
    id: root

    required property bool available  // devices are ticked and no batch runs
    required property string unavailableText  // why no command can start, for tool tips; "" if `available`
    required property int upgradingCount  // number of ticked devices that are being upgraded
    signal resetRequested  // reset the ticked devices; nothing was asked yet

    title: qsTr("恢复出厂设置")

    OVNotice {
        width: parent.width
        iconColor: Theme.colours.warn
        iconName: "alert"
        text: qsTr("设备的全部配置、账号和密码都会清除，此操作无法撤销。恢复后需要重新初始化设备。")
    }
    OVActionRow {
        OVButton {
            enabled: root.available && root.upgradingCount === 0
            kind: OVButton.DangerPrimary
            objectName: "resetButton"
            text: qsTr("恢复出厂设置")
            toolTip: root.upgradingCount > 0 ? qsTr("勾选的设备中有 %n 台正在升级，不能恢复出厂设置", "", root.upgradingCount)
                : root.unavailableText
            onClicked: root.resetRequested()
        }
    }
}
