// The side of the image settings: live view, channel and its name, configuration mode, refresh and defaults. A changed
// name is written to the device immediately.
import QtQuick
import QtQuick.Templates as T
import configtools

Item {
    id: root

    required property ImageWork work  // reads and writes the settings
    readonly property CameraForm form: work.form
    readonly property var groups: form.groups  // by key, see ImageGroup.values

    /// Writes the typed name if it is valid and differs. An empty name is replaced by the current one; a name that is
    /// too long stays with its error.
    function finishName() {
        if (nameField.errorText !== "")
            return;
        if (nameField.text.trim() !== "" && nameField.text !== form.channelName)
            work.set("curChannelName", [["", nameField.text.trim()]]);
        else
            nameField.text = form.channelName;
    }

    Connections {
        target: root.form

        function onChanged() {
            nameField.text = root.form.channelName;
        }
    }

    Flickable {
        id: view
        anchors.fill: parent
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive
        contentHeight: Math.max(height, rows.height + Theme.pageMargin + buttons.height)
        interactive: contentHeight > height

        T.ScrollBar.vertical: OVScrollBar {}

        Column {
            id: rows
            width: parent.width
            spacing: Theme.controlGap

            ChannelLiveView {
                width: parent.width
                active: root.visible && root.work.session.loggedIn
                channel: root.form.channel
                deviceFactory: root.work.deviceFactory
                connected: root.work.connectedChannels[root.form.channel] ?? true
                channelName: root.form.channelName !== "" ? root.form.channelName
                                                          : qsTr("通道 %1").arg(root.form.channel + 1)
            }
            OVFormRow {
                width: parent.width
                label: qsTr("通道")
                labelWidth: Theme.sideLabelWidth

                OVChoice {
                    width: parent.width
                    accessibleName: qsTr("通道")
                    chosen: root.form.channel
                    enabled: root.form.channels.length > 1
                    model: root.form.channels
                    objectName: "imageChannelChoice"
                    source: root.form.groups
                    onIndexRequested: index => root.work.chooseChannel(index)
                }
            }
            OVFormRow {
                width: parent.width
                label: qsTr("通道名称")
                labelWidth: Theme.sideLabelWidth

                OVTextField {
                    id: nameField
                    width: parent.width
                    accessibleName: qsTr("通道名称")
                    enabled: !root.work.session.upgrading
                    errorText: ByteText.bytes(text.trim()) > ByteText.channelNameBytes
                        ? qsTr("名称过长，最多 %1 字节").arg(ByteText.channelNameBytes) : ""
                    objectName: "channelNameField"
                    text: root.form.channelName
                    onAccepted: root.finishName()
                    onActiveFocusChanged: if (!activeFocus) root.finishName()
                }
            }
            OVFormRow {
                width: parent.width
                label: qsTr("配置模式")
                labelWidth: Theme.sideLabelWidth

                OVChoice {
                    width: parent.width
                    accessibleName: qsTr("配置模式")
                    chosen: root.form.switchMode
                    enabled: root.form.switchModes.length > 1
                    model: root.form.switchModes
                    objectName: "switchModeChoice"
                    source: root.form.groups
                    onIndexRequested: index => root.work.chooseMode(index)
                }
            }
            OVParagraph {
                width: parent.width
                color: Theme.colours.faint
                font: Theme.hintFont
                objectName: "imageNotice"
                text: root.work.session.upgrading ? qsTr("设备正在升级，不能修改。") : qsTr("修改会立即写入设备。")
            }
        }
        Row {
            id: buttons
            y: parent.height - height
            width: parent.width
            spacing: Theme.unit

            OVButton {
                width: (parent.width - parent.spacing) / 2
                objectName: "imageRefreshButton"
                text: qsTr("刷新")
                onClicked: root.work.load()
            }
            OVButton {
                width: (parent.width - parent.spacing) / 2
                enabled: root.groups.picture.support && !root.work.session.upgrading
                objectName: "imageDefaultsButton"
                text: qsTr("恢复默认")
                onClicked: root.work.set("setDefault", [["", ""]])
            }
        }
    }
}
