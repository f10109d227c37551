// The ticked devices before their initialisation: those that will be initialised, and the skipped ones with reasons. It
// sends nothing; the owner handles `confirmed`, reads chosen() and closes the dialog.
import QtQuick
import configtools

OVDialog {
    id: root

    readonly property alias count: devices.deviceCount  // number of ticked devices that will be initialised
    /// Height in pixels that shows all rows.
    readonly property int wantedListHeight: Theme.tableHeadHeight + devices.count * Theme.rowHeight + Theme.controlRadius
        + 2 * Theme.line
    /// Maximum height of the list in pixels; leaves room for a notice above the buttons.
    readonly property int roomForList: (parent?.height ?? 0) - 2 * Theme.pageMargin - Theme.dialogHeadHeight
        - 2 * Theme.dialogFootHeight - 2 * contentMargin - hint.height - Theme.unit
    signal confirmed  // at least one device will be initialised

    /// Sets the devices: values of rows of a DeviceTableModel, all of them ticked; the caller opens the dialog.
    function load(rows) {
        devices.setTicked(rows);
    }

    /// Identities of the ticked devices that will be initialised.
    function chosen() {
        return devices.identities();
    }

    wantedWidth: Theme.initialiseWidth
    objectName: "initialiseDialog"
    okText: qsTr("初始化")
    title: qsTr("初始化设置")
    onAccepted: devices.deviceCount > 0 ? confirmed() : refuse(qsTr("请选择一台未初始化的设备"))
    onOpened: table.forceActiveFocus()

    InitialisationPreview {
        id: devices
        onCheckedCountChanged: root.notice = ""
    }

    footContent: Row {
        height: parent.height
        spacing: Theme.signGap
        visible: devices.skippedCount > 0

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
            //: Ticked devices that are not initialised.
            text: qsTr("另有 %n 台不会执行，请查看提示", "", devices.skippedCount)
        }
    }

    Column {
        width: parent.width
        spacing: Theme.unit

        OVTable {
            id: table
            width: parent.width
            height: Math.max(Theme.initialiseListHeight, Math.min(root.wantedListHeight, root.roomForList))
            checkState: devices.checkState
            columns: [
                {key: "num", title: qsTr("No."), width: Theme.columnNumber, cell: numberCell},
                {key: "type", title: qsTr("类型"), width: Theme.columnType},
                {key: "model", title: qsTr("型号"), width: Theme.columnModel},
                {key: "ipport", title: qsTr("IP:端口"), width: Theme.columnAddress, cell: figureCell},
                {key: "mac", title: "MAC", width: Theme.columnMac, cell: figureCell},
                {key: "vision", title: qsTr("版本号"), width: Theme.columnVersion, cell: figureCell},
                {key: "note", title: qsTr("提示"), width: Theme.columnNote, stretch: 1, cell: noteCell}
            ]
            model: devices
            objectName: "initialiseTable"
            onAllToggled: checked => devices.setAllChecked(checked)
            onRangeToggled: (first, last, checked) => devices.setRangeChecked(first, last, checked)
        }
        OVParagraph {
            id: hint
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
        id: noteCell
        OVTableTextCell {
            color: Theme.colours.sub
        }
    }
    Component {
        id: figureCell
        OVTableTextCell {
            font: Theme.figureFont
        }
    }
}
