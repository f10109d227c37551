// A table cell with the problem of a channel name and, for an unsaved name, a button that requests a correction: a name
// that is too long is truncated, any other one is reverted. The table has the roles of ChannelNameForm, and the column of
// the cell is "trouble".
import QtQuick
import configtools

OVTableCell {
    id: root

    signal cutRequested  // truncate the name to the bytes that a device can store
    signal revertRequested  // restore the saved name

    readonly property int trouble: value ?? ChannelNameForm.None  // a ChannelNameForm.Trouble
    /// An error; the other problems are warnings or notes.
    readonly property bool bad: trouble === ChannelNameForm.Empty || trouble === ChannelNameForm.TooLong
        || trouble === ChannelNameForm.Refused || trouble === ChannelNameForm.NoResponse
        || trouble === ChannelNameForm.Upgrading
    /// "" for no problem.
    readonly property string message: {
        switch (trouble) {
        case ChannelNameForm.Unknown:
            return qsTr("设备没有告知名称");
        case ChannelNameForm.Empty:
            return qsTr("名称不能为空");
        case ChannelNameForm.TooLong:
            return qsTr("名称过长，最多 %1 字节").arg(ByteText.channelNameBytes);
        case ChannelNameForm.Refused:
            return qsTr("设备没有接受");
        case ChannelNameForm.NoResponse:
            return qsTr("设备没有应答");
        case ChannelNameForm.Upgrading:
            return qsTr("设备正在升级");
        case ChannelNameForm.Different:
            return qsTr("设备改变了名称");
        default:
            return "";
        }
    }

    Row {
        height: parent.height
        spacing: Theme.signGap

        OVIcon {
            anchors.verticalCenter: parent.verticalCenter
            color: root.bad ? Theme.colours.bad : Theme.colours.warn
            name: root.bad ? "error" : "alert"
            size: Theme.smallIconSize
            visible: root.message !== "" && root.trouble !== ChannelNameForm.Unknown
        }
        OVLabel {
            width: Math.min(implicitWidth, root.width - Theme.smallIconSize - 3 * Theme.unit
                            - (way.visible ? way.width : 0))
            height: parent.height
            color: root.bad ? Theme.colours.bad
                : root.trouble === ChannelNameForm.Unknown ? Theme.colours.faint : Theme.colours.warnText
            objectName: "nameTrouble" + root.rowIndex
            text: root.message
            visible: text !== ""
        }
        OVLinkButton {
            id: way
            anchors.verticalCenter: parent.verticalCenter
            focusPolicy: root.current || activeFocus ? Qt.StrongFocus : Qt.NoFocus
            objectName: "nameWay" + root.rowIndex
            text: root.trouble === ChannelNameForm.TooLong ? qsTr("截短") : qsTr("撤销")
            toolTip: root.trouble === ChannelNameForm.TooLong ? qsTr("保留设备能存下的部分") : qsTr("恢复设备现有的名称")
            visible: root.row?.changed ?? false
            onClicked: {
                if (root.trouble === ChannelNameForm.TooLong)
                    root.cutRequested();
                else
                    root.revertRequested();
            }
        }
    }
}
