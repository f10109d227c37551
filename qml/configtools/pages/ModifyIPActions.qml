// The cell with the buttons of a row of the main page. The buttons only request; the page acts. The Tab key stops only
// at the buttons of the current row.
import QtQuick
import configtools

OVTableCell {
    id: root

    property bool editable: true  // false: IPv6 devices, whose address cannot be changed
    readonly property bool absent: row?.absent ?? false  // not in the list: nothing can be done
    readonly property bool initialised: row?.state ?? true  // otherwise the device has no live view
    readonly property bool upgrading: UpgradeTools.isRunning(row?.upgraderes ?? UpgradeTools.None)
    // In the signals, a row is the index in the table.
    signal editRequested(int row)  // change the address
    signal detailRequested(int row)  // open the details
    signal webRequested(int row)  // open the web page of the device
    signal liveRequested(int row)  // open the live window

    /// The width in pixels of the column that shows all buttons.
    function neededWidth() {
        const buttons = [editButton, detailButton, webButton, liveButton];
        let width = (buttons.length - 1) * actions.spacing + Theme.unit;
        for (const button of buttons)
            width += button.implicitWidth;
        return width;
    }

    OVActionRow {
        id: actions
        readonly property bool keyGroup: true  // one stop of the Tab key, see keygroups.js

        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.controlGap

        OVLinkButton {
            id: editButton
            enabled: root.editable && !root.upgrading && !root.absent
            focusPolicy: root.current || activeFocus ? Qt.StrongFocus : Qt.NoFocus
            objectName: "edit" + root.rowIndex
            text: qsTr("编辑")
            toolTip: root.upgrading ? qsTr("设备正在升级，不能修改IP地址") : qsTr("修改这台设备的IP地址")
            onClicked: root.editRequested(root.rowIndex)
        }
        OVLinkButton {
            id: detailButton
            enabled: !root.absent
            focusPolicy: root.current || activeFocus ? Qt.StrongFocus : Qt.NoFocus
            objectName: "detail" + root.rowIndex
            text: qsTr("详情")
            toolTip: qsTr("显示这台设备的全部信息")
            onClicked: root.detailRequested(root.rowIndex)
        }
        OVLinkButton {
            id: webButton
            enabled: !root.absent
            focusPolicy: root.current || activeFocus ? Qt.StrongFocus : Qt.NoFocus
            objectName: "web" + root.rowIndex
            text: qsTr("web")
            toolTip: qsTr("在浏览器中打开设备网页")
            onClicked: root.webRequested(root.rowIndex)
        }
        OVLinkButton {
            id: liveButton
            enabled: root.initialised && !root.absent
            focusPolicy: root.current || activeFocus ? Qt.StrongFocus : Qt.NoFocus
            objectName: "live" + root.rowIndex
            text: qsTr("live")
            toolTip: root.initialised ? qsTr("查看实时画面") : qsTr("未初始化的设备没有实时画面")
            onClicked: root.liveRequested(root.rowIndex)
        }
    }
}
