// The cell with the state of a device: initialised or not; of a device that is known but not in the list, that it was
// not found. Each state has a shape and a word.
import QtQuick
import configtools

OVTableCell {
    id: root

    readonly property bool absent: row?.absent ?? false  // the device is known but not in the list
    readonly property bool missing: absent && row.presence === KnownDevices.Missing  // not found by a complete search

    /// The width in pixels of the column that shows the words of all states.
    function neededWidth() {
        let widest = 0;
        for (const text of [qsTr("未找到"), qsTr("待确认"), qsTr("已初始化"), qsTr("未初始化")])
            widest = Math.max(widest, Theme.bodyMetrics.advanceWidth(text));
        return dot.width + Theme.signGap + Theme.unit + Theme.half + Math.ceil(widest);
    }

    Rectangle {
        id: dot
        anchors.verticalCenter: parent.verticalCenter
        width: Theme.unit
        height: Theme.unit
        border.color: Theme.colours.sub
        border.width: root.absent ? Theme.line : 0
        color: root.absent ? Theme.colours.clear : root.value ? Theme.colours.ok : Theme.colours.warn
        radius: Theme.half
        visible: !root.missing
    }
    OVIcon {
        id: sign
        x: (dot.width - width) / 2
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.colours.sub
        name: "unplugged"
        objectName: "missingSign" + root.rowIndex
        size: Theme.smallIconSize
        visible: root.missing
    }
    OVLabel {
        anchors.left: dot.right
        anchors.leftMargin: Theme.signGap
        anchors.right: parent.right
        anchors.rightMargin: Theme.half
        height: parent.height
        objectName: "stateText" + root.rowIndex
        opacity: truncated ? 0 : 1  // only the sign; the label's tool tip has the text
        text: root.missing ? qsTr("未找到") : root.absent ? qsTr("待确认")
            : root.value ? qsTr("已初始化") : qsTr("未初始化")
    }

    HoverHandler {
        id: pointer
    }
    OVToolTip {
        shown: pointer.hovered && root.absent
        text: (root.missing ? qsTr("最近一次搜索没有找到该设备") : qsTr("上次的列表中的设备，尚未找到"))
            + (root.row?.lastSeen ? "\n" + qsTr("最后一次找到：%1").arg(root.row.lastSeen) : "")
    }
}
