// The tab for the clocks of the ticked devices: they can be set to the time of this computer or to a typed time, and
// read.
import QtQuick
import configtools

Column {
    id: root

    required property bool available  // devices are ticked and no batch runs
    required property string unavailableText  // why no command can start, for tool tips; "" if `available`
    required property string timeZone  // of this computer, as "UTC+08:00" or "UTC-5:00"
    /// Maps with "device" ("address:port") and "message" (its time or the error), of the last devices read.
    property var clocks: []
    signal actionRequested(string command, string title, var data)  // title: for the user; see SystemBatch.run()
    signal refused(string message)  // the input is invalid; nothing was requested

    spacing: Theme.pageMargin * 1.5
    onClocksChanged: clockRows.setNumberedRows(clocks)

    Timer {
        interval: 1000
        repeat: true
        running: root.visible
        triggeredOnStart: true
        onTriggered: clock.text = SystemTools.timeOfThisComputer()
    }

    DeviceSelection {
        id: clockRows
    }
    Component {
        id: figureCell
        OVTableTextCell {
            font: Theme.figureFont
        }
    }

    OVSection {
        width: parent.width
        title: qsTr("按电脑时间校时")

        Row {
            spacing: Theme.controlGap

            OVLabel {
                id: clock
                height: Theme.controlHeight
                font: Theme.clockFont
                objectName: "computerTime"
            }
            OVLabel {
                height: Theme.controlHeight
                color: Theme.colours.faint
                text: root.timeZone
            }
        }
        OVActionRow {
            OVButton {
                enabled: root.available
                kind: OVButton.Primary
                objectName: "setTimeByPCButton"
                text: qsTr("同步电脑时间")
                toolTip: root.available ? qsTr("每台设备得到发送时刻的电脑时间") : root.unavailableText
                onClicked: root.actionRequested("setTimeByPC", qsTr("同步电脑时间"), {})
            }
        }
    }
    OVSection {
        width: parent.width
        title: qsTr("手动校时")

        OVFormRow {
            width: parent.width
            label: qsTr("时间")
            labelWidth: Theme.panelLabelWidth

            Flow {
                width: parent.width
                spacing: Theme.unit

                OVDateTimeField {
                    id: field
                    width: Theme.momentFieldWidth
                    accessibleName: qsTr("时间")
                    objectName: "manualTimeField"
                    text: SystemTools.timeOfThisComputer()
                    onAccepted: if (root.available) root.applyByHand()
                }
                OVButton {
                    objectName: "takeNowButton"
                    text: qsTr("取当前时间")
                    onClicked: field.text = SystemTools.timeOfThisComputer()
                }
            }
        }
        OVActionRow {
            x: Theme.panelLabelWidth + Theme.unit

            OVButton {
                enabled: root.available
                objectName: "setTimeByManualButton"
                text: qsTr("应用")
                toolTip: root.unavailableText
                onClicked: root.applyByHand()
            }
        }
    }
    OVSection {
        width: parent.width
        title: qsTr("设备时间")

        OVActionRow {
            OVButton {
                enabled: root.available
                objectName: "readTimeButton"
                text: qsTr("读取设备时间")
                toolTip: root.unavailableText
                onClicked: root.actionRequested("readTime", qsTr("读取设备时间"), {})
            }
        }
        OVTable {
            width: parent.width
            height: Math.min(Theme.clockListHeight, Theme.tableHeadHeight + root.clocks.length * Theme.rowHeight + Theme.unit)
            checkable: false
            columns: [
                {key: "device", title: qsTr("设备"), width: Theme.columnAddress, cell: figureCell},
                {key: "message", title: qsTr("设备时间"), width: Theme.columnAddress, stretch: 1}
            ]
            model: clockRows
            objectName: "clockTable"
            visible: root.clocks.length > 0
        }
    }

    /// Requests the command with the typed time, or refuses an invalid one.
    function applyByHand() {
        const time = field.text;
        if (field.acceptable)
            actionRequested("setTimeByManual", qsTr("手动校时"), {time: time});
        else
            refused(field.invalidText);
    }
}
