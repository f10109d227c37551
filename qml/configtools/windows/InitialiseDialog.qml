// Which of the factory-new devices get their first password.
import QtQuick
import configtools

OVDialog {
    id: root

    readonly property alias count: devices.checkedCount
    property var skipped: []  // rows of the other devices that the user has ticked
    signal confirmed

    function load(rows, others) {
        devices.setRows(rows);
        skipped = others;
    }

    /// Names of the ticked rows.
    function chosen() {
        return devices.checkedIdentities();
    }

    width: Theme.initialiseWidth
    objectName: "initialiseDialog"
    okText: qsTr("初始化")
    title: qsTr("初始化设置")
    onAccepted: devices.checkedCount > 0 ? confirmed() : refuse(qsTr("请选择一台未初始化的设备"))
    onOpened: table.forceActiveFocus()

    DeviceSelection {
        id: devices
        onCheckedCountChanged: root.notice = ""
    }

    footContent: Row {
        height: parent.height
        spacing: Theme.signGap
        visible: root.skipped.length > 0

        OVIcon {
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.colours.sub
            name: "mixed"
            size: Theme.smallIconSize
        }
        OVLabel {
            height: parent.height
            color: Theme.colours.sub
            objectName: "skippedCount"
            //: Of the ticked devices; they get no first password.
            text: qsTr("另有 %n 台已初始化，不会执行", "", root.skipped.length)

            HoverHandler {
                id: pointer
            }
            OVToolTip {
                shown: pointer.hovered
                text: root.skipped.slice(0, 12).map(row => row.ipport).concat(root.skipped.length > 12 ? ["…"] : [])
                    .join("\n")
            }
        }
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
