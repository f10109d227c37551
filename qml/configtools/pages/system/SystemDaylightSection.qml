// The section for daylight saving of the ticked devices: switched on or off, start and end. It shows no values of
// devices. It requests the command "dstConfig" with "dstEnable" (bool), "dstMode" (0 by date, 1 by week) and the values
// of both SystemDaylightPoint.
import QtQuick
import configtools

OVSection {
    id: root

    required property bool available  // devices are ticked and no batch runs
    required property string unavailableText  // why no command can start, for tool tips; "" if `available`
    required property var deviceFactory  // a CDeviceFactory; provides the days of a month
    signal actionRequested(string command, string title, var data)  // title: for the user; see SystemBatch.run()
    signal refused(string message)  // the input is invalid; nothing was requested

    title: qsTr("夏令时")

    SystemLists {
        id: systemLists
    }

    Row {
        spacing: Theme.pageMargin

        OVCheckBox {
            id: enabledBox
            width: Theme.panelLabelWidth + Theme.unit - parent.spacing
            objectName: "dstEnableBox"
            text: qsTr("启用")
        }
        OVRadioButton {
            id: byDate
            objectName: "dstByDate"
            text: qsTr("按日期")
        }
        OVRadioButton {
            id: byWeek
            checked: true
            objectName: "dstByWeek"
            text: qsTr("按星期")
        }
    }
    OVFormRow {
        width: parent.width
        label: qsTr("开始时间")
        labelWidth: Theme.panelLabelWidth

        SystemDaylightPoint {
            id: begin
            byWeek: byWeek.checked
            deviceFactory: root.deviceFactory
            lists: systemLists
            month: 2
            name: "start"
            time: "02:00"
            week: 4
        }
    }
    OVFormRow {
        width: parent.width
        label: qsTr("结束时间")
        labelWidth: Theme.panelLabelWidth

        SystemDaylightPoint {
            id: end
            byWeek: byWeek.checked
            deviceFactory: root.deviceFactory
            lists: systemLists
            month: 9
            name: "end"
            time: "03:00"
            week: 4
        }
    }
    OVActionRow {
        x: Theme.panelLabelWidth + Theme.unit

        OVButton {
            enabled: root.available
            objectName: "dstApplyButton"
            text: qsTr("应用夏令时")
            toolTip: root.unavailableText
            onClicked: {
                if (!begin.acceptable || !end.acceptable) {
                    root.refused(qsTr("请输入正确的时间"));
                    return;
                }
                const data = Object.assign({dstEnable: enabledBox.checked, dstMode: byWeek.checked ? 1 : 0},
                                           begin.values(), end.values());
                root.actionRequested("dstConfig", root.title, data);
            }
        }
    }
}
