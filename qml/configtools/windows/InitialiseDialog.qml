// Which of the factory-new devices get their first password.
import QtQuick
import configtools

OVDialog {
    id: root

    readonly property alias count: devices.checkedCount
    signal refused(string message)
    signal confirmed

    function load(rows) {
        devices.setRows(rows);
    }

    /// Names of the ticked rows.
    function chosen() {
        return devices.checkedIdentities();
    }

    width: Theme.initialiseWidth
    objectName: "initialiseDialog"
    okText: qsTr("初始化")
    title: qsTr("初始化设置")
    onAccepted: devices.checkedCount > 0 ? confirmed() : refused(qsTr("请选择一台未初始化的设备"))
    onOpened: table.forceActiveFocus()

    DeviceSelection {
        id: devices
    }

    Column {
        width: parent.width
        spacing: Theme.unit

        OVTable {
            id: table
            width: parent.width
            height: Theme.initialiseListHeight
            checkState: devices.checkState
            columns: [
                {key: "num", title: qsTr("No."), width: Theme.columnNumber, cell: numberCell},
                {key: "type", title: qsTr("类型"), width: Theme.columnType},
                {key: "model", title: qsTr("型号"), width: Theme.columnModel, stretch: 1},
                {key: "ipport", title: qsTr("IP:端口"), width: Theme.columnAddress, cell: figureCell},
                {key: "mac", title: "MAC", width: Theme.columnMac, cell: figureCell},
                {key: "vision", title: qsTr("版本号"), width: Theme.columnVersion, stretch: 1, cell: figureCell}
            ]
            model: devices
            objectName: "initialiseTable"
            onAllToggled: checked => devices.setAllChecked(checked)
            onRangeToggled: (first, last, checked) => devices.setRangeChecked(first, last, checked)
        }
        OVParagraph {
            width: parent.width
            color: Theme.colours.sub
            font: Theme.hintFont
            text: qsTr("列表只显示本局域网设备,初始化不支持跨局域网")
        }
    }

    Component {
        id: numberCell
        OVTableTextCell {
            font: Theme.figureFont
            text: rowIndex + 1
        }
    }
    Component {
        id: figureCell
        OVTableTextCell {
            font: Theme.figureFont
        }
    }
}
