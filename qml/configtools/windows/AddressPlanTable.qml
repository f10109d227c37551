// Who will get which address, and what will be wrong with it.
import QtQuick
import configtools

OVTable {
    id: root

    property bool dhcp: false

    /// Addresses are shown without their ports: the port stays.
    function withoutPort(ipport) {
        return ipport.slice(0, ipport.lastIndexOf(":"));
    }

    function wordOf(mark) {
        switch (mark) {
        case AddressPlan.NotInitialised:
            return qsTr("未初始化，不会修改");
        case AddressPlan.TakenByOther:
            return qsTr("与其他设备冲突");
        case AddressPlan.TakenInBatch:
            return qsTr("与本批设备冲突");
        case AddressPlan.OutsideSubnet:
            return qsTr("超出起始IP的网段");
        case AddressPlan.NoDeviceAddress:
            return qsTr("网络地址或广播地址");
        default:
            return "";
        }
    }

    checkable: false
    columns: [
        {key: "num", title: qsTr("No."), width: Theme.columnNumber, cell: figures},
        {key: "name", title: qsTr("名称"), width: Theme.columnModel, stretch: 1},
        {key: "ipport", title: qsTr("原地址"), width: Theme.columnPlanAddress, cell: oldAddress},
        {key: "address", title: qsTr("新地址"), width: Theme.columnPlanAddress, cell: newAddress},
        {key: "mark", title: qsTr("提示"), width: Theme.columnPlanMark, cell: markCell}
    ]
    objectName: "planTable"

    Component {
        id: figures
        OVTableTextCell {
            font: Theme.figureFont
        }
    }

    // qmllint disable unqualified
    Component {
        id: oldAddress
        OVTableTextCell {
            color: Theme.colours.sub
            font: Theme.figureFont
            text: root.withoutPort(value ?? "")
        }
    }
    Component {
        id: newAddress
        OVTableTextCell {
            font: Theme.figureFont
            text: root.dhcp ? "DHCP" : value ?? ""
        }
    }
    Component {
        id: markCell
        OVTableCell {
            id: mark
            readonly property string word: root.dhcp && value !== AddressPlan.NotInitialised
                ? "" : root.wordOf(value ?? AddressPlan.Fine)

            OVIcon {
                id: sign
                anchors.verticalCenter: parent.verticalCenter
                color: mark.conflict ? Theme.colours.bad : Theme.colours.warn
                name: "alert"
                size: Theme.smallIconSize
                visible: mark.word !== ""
            }
            OVLabel {
                anchors.left: sign.right
                anchors.leftMargin: Theme.signGap
                anchors.right: parent.right
                anchors.rightMargin: Theme.unit
                height: parent.height
                text: mark.word
            }
        }
    }
    // qmllint enable unqualified
}
