// The tab with the channel names of the shown device in a table. Changes stay in the table until the save button writes
// all of them.
import QtQuick
import configtools

Item {
    id: root

    required property ChannelNamesWork work  // reads and writes the names
    readonly property ChannelNameForm form: work.form  // model of the table: a row for each channel, from 0
    property int wantedRow: -1  // row whose field gets the keyboard focus, -1 for none
    property bool advancing: false  // Enter in the last row has started a save; after success the next device is opened
    signal refreshRequested  // read the names again
    signal nextDeviceRequested  // open the next device of the tree
    signal patternRequested  // open the dialog that names by a pattern

    /// Focuses the name field of a row; after the last row the save button, or the button for the pattern if saving is
    /// not possible. Does nothing for a negative row.
    function edit(row) {
        if (row < 0)
            return;
        if (row >= form.count) {
            (save.enabled ? save : pattern).forceActiveFocus(Qt.TabFocusReason);
            return;
        }
        table.show(row);
        wantedRow = row;
    }

    /// Handles Enter in a row: moves to the next row. In the last row it saves the changes, then requests the next
    /// device; after a failed save it stays. Without changes, and while the device is being upgraded, it requests the
    /// next device immediately.
    function confirm(row) {
        if (row + 1 < form.count) {
            edit(row + 1);
        } else if (work.unsaved > 0 && !work.session.upgrading) {
            advancing = true;
            work.save();
        } else {
            advance();
        }
    }

    /// Requests the next device.
    function advance() {
        advancing = false;
        nextDeviceRequested();
    }

    /// Focuses the first name when the names of a newly chosen device are read.
    function arrive() {
        if (!work.read || !work.arriving)
            return;
        work.arriving = false;
        edit(0);
    }

    Component.onCompleted: arrive()

    Connections {
        target: root.work

        function onRowWanted(row) {
            root.advancing = false;
            root.edit(row);
        }
        function onNotAllSaved() {
            root.advancing = false;
        }
        function onAllSaved() {
            if (root.advancing)
                root.advance();
        }
        function onReadChanged() {
            root.advancing = false;  // another device is shown
            root.arrive();
        }
    }

    OVTable {
        id: table
        x: Theme.pageMargin
        y: Theme.pageMargin
        width: parent.width - 2 * x
        height: foot.y - y - Theme.pageMargin
        checkable: false
        columns: [
            {key: "num", title: qsTr("通道"), width: Theme.columnShortActions, cell: numberCell},
            {key: "connected", title: qsTr("连接"), width: Theme.columnConnection, cell: connectionCell},
            {
                key: "name", title: qsTr("名称"), width: Theme.columnCommand, leastWidth: Theme.columnNameField,
                mostWidth: Theme.columnMost, stretch: 1, cell: nameCell
            },
            {key: "bytes", title: qsTr("字节"), width: Theme.columnBytes, cell: bytesCell},
            {key: "trouble", title: " ", width: Theme.columnResponse, cell: troubleCell}
        ]
        model: root.form
        objectName: "nameTable"
        onRowActivated: row => root.edit(row)
    }

    Component {
        id: numberCell
        OVTableTextCell {
            font: Theme.figureFont
        }
    }
    // qmllint disable unqualified
    Component {
        id: connectionCell
        OVTableCell {
            id: connection

            Row {
                height: parent.height
                spacing: Theme.signGap

                Rectangle {
                    anchors.verticalCenter: parent.verticalCenter
                    width: Theme.unit
                    height: width
                    color: connection.value ? Theme.colours.ok : Theme.colours.faint
                    radius: width / 2
                }
                OVLabel {
                    height: parent.height
                    color: connection.value ? Theme.colours.text : Theme.colours.sub
                    text: connection.value ? qsTr("已连接") : qsTr("未连接")
                }
            }
        }
    }
    Component {
        id: nameCell
        ChannelNameCell {
            wantedRow: root.wantedRow
            onConfirmed: root.confirm(rowIndex)
            onEdited: name => root.form.set(rowIndex, name)
            onEntered: table.show(rowIndex)
            onLeftFor: row => root.edit(row)
            onReached: root.wantedRow = -1
            onReverted: root.form.restoreName(rowIndex)
        }
    }
    Component {
        id: bytesCell
        OVTableTextCell {
            color: value > ByteText.channelNameBytes ? Theme.colours.bad : Theme.colours.sub
            font: Theme.figureFont
            text: (value ?? 0) + " / " + ByteText.channelNameBytes
        }
    }
    Component {
        id: troubleCell
        ChannelNameTrouble {
            onCutRequested: root.form.truncate(rowIndex)
            onRevertRequested: root.form.restoreName(rowIndex)
        }
    }
    // qmllint enable unqualified

    Rectangle {
        id: foot
        y: parent.height - height
        width: parent.width
        height: Theme.dialogFootHeight
        color: Theme.colours.foot
        radius: Theme.paneRadius

        Rectangle {
            width: parent.width
            height: Theme.paneRadius
            color: Theme.colours.foot
        }
        Rectangle {
            width: parent.width
            height: Theme.line
            color: Theme.colours.line
        }
        Row {
            x: Theme.pageMargin + Theme.unit
            height: parent.height
            spacing: Theme.signGap

            OVIcon {
                anchors.verticalCenter: parent.verticalCenter
                color: root.form.failedCount > 0 ? Theme.colours.bad : Theme.colours.warn
                name: root.form.failedCount > 0 ? "error" : "alert"
                size: Theme.smallIconSize
                visible: stateLabel.text !== ""
            }
            OVLabel {
                id: stateLabel
                width: Math.min(implicitWidth, buttons.x - parent.x - parent.spacing - Theme.smallIconSize
                    - Theme.pageMargin)
                height: parent.height
                color: root.form.failedCount > 0 ? Theme.colours.bad : Theme.colours.warnText
                objectName: "namesNotice"
                text: root.form.failedCount > 0 ? qsTr("%n 个通道名称未保存", "", root.form.failedCount)
                    : root.work.session.upgrading ? qsTr("设备正在升级，不能保存修改")
                    : root.work.unsaved > 0 ? qsTr("有未保存的修改：%n 项", "", root.work.unsaved)
                    : root.form.unknownCount > 0 ? qsTr("设备没有告知 %n 个通道的名称", "", root.form.unknownCount) : ""
            }
        }
        Row {
            id: buttons
            anchors.right: parent.right
            anchors.rightMargin: Theme.pageMargin
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.unit

            OVButton {
                id: pattern
                objectName: "namePatternButton"
                text: qsTr("按规则命名")
                toolTip: qsTr("用一条规则为多个通道或多台摄像机命名")
                onClicked: root.patternRequested()
            }
            OVButton {
                objectName: "namesRefreshButton"
                text: qsTr("刷新")
                onClicked: root.refreshRequested()
            }
            OVButton {
                id: save
                enabled: root.work.unsaved > 0 && !root.work.session.upgrading
                kind: OVButton.Primary
                objectName: "namesSaveButton"
                text: qsTr("保存")
                toolTip: root.work.session.upgrading ? qsTr("设备正在升级，不能保存修改") : ""
                onClicked: root.work.save()
            }
        }
    }
}
