// The tab with scheduled reboots (command "autoMaintain") and an immediate reboot.
import QtQuick
import configtools

Column {
    id: root

    required property bool available  // devices are ticked and no batch runs
    required property string unavailableText  // why no command can start, for tool tips; "" if `available`
    required property bool hasMaintenance  // the network library can schedule reboots
    required property int upgradingCount  // number of ticked devices that are being upgraded
    signal actionRequested(string command, string title, var data)  // title: for the user; see SystemBatch.run()
    signal rebootRequested  // reboot the ticked devices; nothing was asked yet
    signal refused(string message)  // the input is invalid; nothing was requested

    spacing: Theme.pageMargin * 1.5

    SystemLists {
        id: systemLists
    }

    OVSection {
        width: parent.width
        title: qsTr("自动维护")
        visible: root.hasMaintenance

        OVCheckBox {
            id: autoBox
            objectName: "autoRebootBox"
            text: qsTr("定时自动重启")
        }
        OVFormRow {
            width: parent.width
            enabled: autoBox.checked
            label: qsTr("重启时间")
            labelWidth: Theme.panelLabelWidth

            Row {
                spacing: Theme.unit

                OVComboBox {
                    id: dayBox
                    width: Theme.shortChoiceWidth
                    accessibleName: qsTr("重启日")
                    currentIndex: 7
                    model: systemLists.maintenanceDays
                    objectName: "maintenanceDayBox"
                }
                OVDateTimeField {
                    id: timeField
                    width: Theme.hourFieldWidth
                    accessibleName: qsTr("重启时间")
                    format: "hh:mm"
                    objectName: "maintenanceTimeField"
                    text: "02:00"
                }
            }
        }
        OVActionRow {
            x: Theme.panelLabelWidth + Theme.unit

            OVButton {
                enabled: root.available
                kind: OVButton.Primary
                objectName: "autoMaintainButton"
                text: qsTr("应用")
                toolTip: root.unavailableText
                onClicked: {
                    if (!timeField.acceptable) {
                        root.refused(timeField.invalidText);
                        return;
                    }
                    const data = {week: dayBox.currentIndex, time: timeField.text, autoReboot: autoBox.checked};
                    root.actionRequested("autoMaintain", qsTr("自动维护"), data);
                }
            }
        }
    }
    OVSection {
        width: parent.width
        title: qsTr("立即重启")

        OVParagraph {
            width: parent.width
            color: Theme.colours.sub
            text: qsTr("设备重启期间无法访问，录像和预览会中断。")
        }
        OVActionRow {
            OVButton {
                enabled: root.available && root.upgradingCount === 0
                kind: OVButton.Danger
                objectName: "rebootButton"
                text: qsTr("重启设备")
                toolTip: root.upgradingCount > 0 ? qsTr("勾选的设备中有 %n 台正在升级，不能重启", "", root.upgradingCount)
                    : root.unavailableText
                onClicked: root.rebootRequested()
            }
        }
    }
}
