// A table cell with address and port of a device. An icon marks a row whose address and port another device has, too. A
// device that was set to DHCP has no address until the next search finds it: the cell shows "DHCP:" and its port.
import QtQuick
import configtools

OVTableCell {
    id: root

    OVLabel {
        id: addressLabel
        readonly property int signRoom: sign.visible ? sign.width + Theme.signGap : 0
        width: Math.min(implicitWidth, parent.width - Theme.unit - signRoom)
        height: parent.height
        font: Theme.figureFont
        text: (root.value ?? "").replace(/^:/, "DHCP:")  // no address until the next search
    }
    OVIcon {
        id: sign
        anchors.left: addressLabel.right
        anchors.leftMargin: Theme.signGap
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.colours.bad
        name: "alert"
        objectName: "conflictSign" + root.rowIndex
        size: Theme.smallIconSize
        visible: root.conflict

        HoverHandler {
            id: pointer
        }
        OVToolTip {
            shown: pointer.hovered
            text: qsTr("IP地址冲突")
        }
    }
}
