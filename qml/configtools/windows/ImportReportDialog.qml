// What came of reading a device list: how many devices, and each that failed with its line and the reason.
import QtQuick
import configtools

OVDialog {
    id: root

    property string summary

    /// `failed` as the factory's importFailures() returns it.
    function load(text, failed) {
        summary = text;
        // A line has no MAC that could tell it from others: its number does.
        lines.setRows(failed.map(failure => Object.assign({mac: String(failure.line)}, failure)));
    }

    width: Theme.addressPlanWidth
    objectName: "importReport"
    hasCancel: false
    title: qsTr("导入结果")
    onAccepted: close()
    onOpened: table.forceActiveFocus()

    DeviceSelection {
        id: lines
    }

    Column {
        width: parent.width
        spacing: Theme.controlGap

        OVNotice {
            width: parent.width
            iconColor: Theme.colours.warn
            iconName: "alert"
            text: root.summary
        }
        OVTable {
            id: table
            width: parent.width
            height: Theme.initialiseListHeight
            checkable: false
            columns: [
                {key: "line", title: qsTr("行"), width: Theme.columnNumber, cell: figureCell},
                {key: "address", title: qsTr("地址"), width: Theme.columnAddress, cell: figureCell},
                {key: "reason", title: qsTr("原因"), width: Theme.columnAddress, stretch: 1}
            ]
            model: lines
            objectName: "importTable"
        }
    }

    Component {
        id: figureCell
        OVTableTextCell {
            font: Theme.figureFont
        }
    }
}
