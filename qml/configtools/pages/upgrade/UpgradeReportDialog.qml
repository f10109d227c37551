// The lines of an upgrade document: which devices get which file, and which cannot be upgraded and why.
import QtQuick
import configtools

OVDialog {
    id: root

    property string path
    readonly property int good: goodLines.length
    readonly property int bad: lines.count - good
    property var goodLines: []
    signal confirmed(string path, var lines)

    /// `report` as the factory's importUpgradeDocument() returns it.
    function load(file, report) {
        path = file;
        goodLines = report.filter(line => line.code === UpgradeTools.None);
        // A line may have no MAC: its number tells it from others.
        lines.setRows(report.map(line => Object.assign({}, line, {mac: String(line.line)})));
    }

    width: Theme.reportWidth
    objectName: "upgradeReport"
    okEnabled: good > 0
    okText: qsTr("开始升级")
    title: qsTr("升级文档")
    onAccepted: {
        close();
        confirmed(path, goodLines);
    }
    onOpened: table.forceActiveFocus()

    DeviceSelection {
        id: lines
    }

    Column {
        width: parent.width
        spacing: Theme.controlGap

        OVNotice {
            width: parent.width
            iconColor: root.bad > 0 ? Theme.colours.warn : Theme.colours.accent
            iconName: root.bad > 0 ? "alert" : "about"
            text: qsTr("%n 台设备可以升级", "", root.good)
                + (root.bad > 0 ? qsTr("，%n 台不能升级", "", root.bad) : "")
                + qsTr("。升级期间设备会重启，请勿断电；结果将写入文档。")
        }
        OVTable {
            id: table
            width: parent.width
            height: Theme.initialiseListHeight
            checkable: false
            columns: [
                {key: "line", title: qsTr("行"), width: Theme.columnNumber, cell: figureCell},
                {key: "address", title: qsTr("地址"), width: Theme.columnAddress, cell: figureCell},
                {key: "file", title: qsTr("升级文件"), width: Theme.columnAddress, stretch: 1, cell: fileCell},
                {key: "reason", title: qsTr("检查结果"), width: Theme.columnAnswer, cell: reasonCell}
            ]
            model: lines
            objectName: "upgradeReportTable"
        }
    }

    Component {
        id: figureCell
        OVTableTextCell {
            font: Theme.figureFont
        }
    }
    Component {
        id: fileCell
        OVTableTextCell {
            text: (value ?? "").slice((value ?? "").lastIndexOf("/") + 1)
        }
    }
    Component {
        id: reasonCell
        OVTableCell {
            id: reason

            readonly property bool good: (row?.code ?? UpgradeTools.None) === UpgradeTools.None

            OVIcon {
                id: sign
                anchors.verticalCenter: parent.verticalCenter
                color: reason.good ? Theme.colours.ok : Theme.colours.bad
                name: reason.good ? "ok" : "error"
                size: Theme.smallIconSize
            }
            OVLabel {
                x: sign.width + Theme.signGap
                width: parent.width - x - Theme.unit
                height: parent.height
                color: reason.good ? Theme.colours.ink : Theme.colours.bad
                text: reason.good ? qsTr("可以升级") : reason.value ?? ""
            }
        }
    }
}
