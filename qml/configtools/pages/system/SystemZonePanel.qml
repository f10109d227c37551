// The tab for daylight saving, time zone and NTP of the ticked devices. It shows no values of devices: the time zone is
// initially that of this computer.
import QtQuick
import configtools

Column {
    id: root

    required property bool available  // devices are ticked and no batch runs
    required property string unavailableText  // why no command can start, for tool tips; "" if `available`
    /// The network library can set NTP port and period; otherwise their fields are hidden.
    required property bool hasServerDetails
    required property string timeZone  // of this computer, as "UTC+08:00" or "UTC-5:00"
    required property var deviceFactory  // a CDeviceFactory; provides the days of a month
    /// Run this command of the back end on the ticked devices. `title`: name for the user. `data`: map of parameters.
    signal actionRequested(string command, string title, var data)
    signal refused(string message)  // the input is invalid; nothing was requested

    /// "" if a time zone is selected.
    readonly property string zoneError: zoneBox.currentIndex >= 0 ? ""
        : qsTr("设备没有本机的时区 %1，请选择时区").arg(timeZone)
    /// First error of time zone and NTP, "" for none.
    readonly property string ntpError: zoneError !== "" ? zoneError : ntpBox.checked && serverField.errorText !== "" ? serverField.errorText
        : !portField.acceptable ? portField.invalidText : !periodField.acceptable ? periodField.invalidText : ""

    spacing: Theme.pageMargin

    SystemDaylightSection {
        width: parent.width
        available: root.available
        unavailableText: root.unavailableText
        deviceFactory: root.deviceFactory
        onActionRequested: (command, title, data) => root.actionRequested(command, title, data)
        onRefused: message => root.refused(message)
    }
    OVSection {
        width: parent.width
        title: qsTr("时区和NTP")

        Row {
            spacing: Theme.pageMargin

            OVFormRow {
                width: Theme.panelLabelWidth + Theme.unit + Theme.choiceWidth
                label: qsTr("时区")
                labelWidth: Theme.panelLabelWidth

                OVComboBox {
                    id: zoneBox
                    accessibleName: qsTr("时区")
                    currentIndex: SystemTools.timeZoneIndex(root.timeZone)
                    displayText: currentIndex < 0 ? "—" : currentText
                    font: Theme.figureFont
                    model: SystemTools.timeZones
                    objectName: "timeZoneBox"
                }
            }
            OVCheckBox {
                id: ntpBox
                objectName: "ntpSetBox"
                text: qsTr("启用NTP")
            }
        }
        OVParagraph {
            x: Theme.panelLabelWidth + Theme.unit
            width: parent.width - x
            color: Theme.colours.warnText
            objectName: "zoneError"
            text: root.zoneError
            visible: text !== ""
        }
        OVFormRow {
            width: Theme.panelLabelWidth + Theme.unit + Theme.choiceWidth
            label: qsTr("NTP服务器")
            labelWidth: Theme.panelLabelWidth

            OVTextField {
                id: serverField
                width: Theme.choiceWidth
                accessibleName: qsTr("NTP服务器")
                errorText: !ntpBox.checked || SystemTools.isHost(text.trim()) ? ""
                    : text.trim() === "" ? qsTr("请输入NTP服务器") : qsTr("请输入正确的IP地址或域名")
                maximumLength: 255
                objectName: "ntpServerField"
                placeholderText: qsTr("地址或域名")
                textFont: Theme.figureFont
            }
        }
        Flow {
            width: parent.width
            spacing: Theme.pageMargin
            visible: root.hasServerDetails

            OVFormRow {
                width: Theme.panelLabelWidth + Theme.unit + Theme.choiceWidth
                label: qsTr("NTP端口")
                labelWidth: Theme.panelLabelWidth

                OVNumberField {
                    id: portField
                    width: Theme.choiceWidth
                    accessibleName: qsTr("NTP端口")
                    objectName: "ntpPortField"
                    text: "123"
                }
            }
            OVFormRow {
                width: Theme.panelLabelWidth + Theme.unit + Theme.hourFieldWidth
                label: qsTr("更新周期(分钟)")
                labelWidth: Theme.panelLabelWidth

                OVNumberField {
                    id: periodField
                    width: Theme.hourFieldWidth
                    accessibleName: qsTr("更新周期(分钟)")
                    objectName: "updatePeriodField"
                    text: "10"
                }
            }
        }
        OVActionRow {
            x: Theme.panelLabelWidth + Theme.unit

            OVButton {
                enabled: root.available
                kind: OVButton.Primary
                objectName: "ntpApplyButton"
                text: qsTr("应用时区和NTP")
                toolTip: root.unavailableText
                onClicked: {
                    if (root.ntpError !== "") {
                        root.refused(root.ntpError);
                        return;
                    }
                    const data = {
                        timeZone: zoneBox.currentIndex, ntpSet: ntpBox.checked, ntpServer: serverField.text.trim(),
                        ntpPort: Number(portField.text), updatePeriod: Number(periodField.text)
                    };
                    root.actionRequested("ntpConfig", qsTr("时区和NTP"), data);
                }
            }
        }
    }
}
