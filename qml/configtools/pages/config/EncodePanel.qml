// The tab with the encode settings of a channel: both streams, with a common save button. Changes stay on the page
// until they are saved, except for the resolution of the sub stream: EncodeWork writes it to the device immediately.
import QtQuick
import QtQuick.Templates as T
import configtools

Item {
    id: root

    required property EncodeWork work  // reads and writes the settings
    required property int targetCount  // number of devices that a copy would write to: ticked ones except this device
    readonly property EncodeForm form: work.form
    /// Error in the foot, "" for none.
    readonly property string errorText: {
        const lost = work.session.lost ? qsTr("与设备的连接已断开") : "";
        if (work.unsavedItems !== "")
            return Array.from([lost, qsTr("没有保存：%1").arg(work.unsavedItems.trim().split("\n").join(qsTr("、")))])
                .filter(part => part !== "").join(qsTr("，"));
        if (work.failed)
            return "";
        if (lost !== "")
            return lost;
        if (work.session.upgrading)
            return qsTr("设备正在升级，不能保存修改");
        if (work.result === work.configurationUnreadable)
            return qsTr("设备的配置无法识别，显示的内容可能不完整");
        return form.complete ? "" : qsTr("设备没有告知它的编码能力，部分选项为空");
    }
    signal channelRequested(int index)  // select the channel with this index, from 0
    signal streamTypeRequested(int index)  // select the type of the main stream with this index
    signal refreshRequested  // read the settings again
    signal copyRequested  // copy the settings to the ticked devices

    Flickable {
        id: view
        width: parent.width
        height: foot.y
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        contentHeight: content.height + 2 * Theme.controlGap
        interactive: contentHeight > height

        T.ScrollBar.vertical: OVScrollBar {}

        Column {
            id: content
            x: Theme.pageMargin + Theme.unit
            y: Theme.controlGap
            width: Math.min(Theme.encodeWidth, view.width - 2 * x)
            spacing: Theme.unit

            Item {
                width: parent.width
                height: Theme.controlHeight

                EncodeRow {
                    width: streams.columnWidth
                    label: qsTr("通道")

                    OVChoice {
                        width: parent.width
                        accessibleName: qsTr("通道")
                        chosen: root.form.channel
                        enabled: root.form.channels.length > 1
                        model: root.form.channels
                        objectName: "encodeChannelChoice"
                        source: root.form.mainStream
                        onIndexRequested: index => root.channelRequested(index)
                    }
                }
            }
            Grid {
                id: streams

                readonly property bool beside: content.width >= 2 * Theme.encodeColumnWidth + columnSpacing
                readonly property real columnWidth: beside ? (content.width - columnSpacing) / 2 : content.width

                columnSpacing: Theme.unit * 5
                columns: beside ? 2 : 1
                rowSpacing: Theme.pageMargin
                visible: !root.work.failed

                EncodeStream {
                    width: streams.columnWidth
                    namePrefix: "main"
                    stream: root.form.mainStream
                    streamType: root.form.streamType
                    streamTypes: root.form.streamTypes
                    title: qsTr("主码流")
                    onChangeRequested: (key, value) => root.work.set(key, value)
                    onStreamTypeRequested: index => root.streamTypeRequested(index)
                }
                EncodeStream {
                    width: streams.columnWidth
                    isSub: true
                    namePrefix: "sub"
                    stream: root.form.subStream
                    streamTypes: root.form.subStreamTypes
                    title: qsTr("辅码流")
                    visible: root.work.subStream.exists
                    onChangeRequested: (key, value) => root.work.set(key, value)
                }
            }
        }
    }

    // The earlier values belong to another channel.
    OVEmptyState {
        anchors.fill: view
        hint: root.work.session.lost ? qsTr("与设备的连接已断开，请刷新重试。")
            : qsTr("%1，或者这个通道没有连接。请选择其他通道，或刷新重试。").arg(root.form.failureName(root.work.result))
        iconName: "unplugged"
        objectName: "encodeEmptyState"
        title: qsTr("没有读到通道 %1 的编码配置").arg(root.form.channel + 1)
        visible: root.work.failed
    }

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
                color: root.errorText !== "" ? Theme.colours.bad : Theme.colours.warn
                name: root.errorText !== "" ? "error" : "alert"
                size: Theme.smallIconSize
                visible: stateLabel.text !== ""
            }
            OVLabel {
                id: stateLabel
                width: Math.min(implicitWidth, buttons.x - parent.x - parent.spacing - Theme.smallIconSize
                    - Theme.pageMargin)
                height: parent.height
                color: root.errorText !== "" ? Theme.colours.bad : Theme.colours.warnText
                objectName: "encodeNotice"
                text: root.errorText !== "" ? root.errorText
                    : root.work.unsaved > 0 ? qsTr("有未保存的修改：%n 项", "", root.work.unsaved)
                    : root.work.failed || root.form.unreadItems.length === 0 ? ""
                    : qsTr("没有读到：%1，保存时不写入").arg(Array.from(root.form.unreadItems).join(qsTr("、")))
            }
        }
        Row {
            id: buttons
            anchors.right: parent.right
            anchors.rightMargin: Theme.pageMargin
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.unit

            OVButton {
                enabled: root.work.copyable && root.targetCount > 0
                iconName: "copy"
                objectName: "copyButton"
                text: root.targetCount > 0 ? qsTr("复制到 %n 台设备", "", root.targetCount)
                                           : qsTr("复制到选中的设备")
                onClicked: root.copyRequested()
            }
            OVButton {
                objectName: "encodeRefreshButton"
                text: qsTr("刷新")
                onClicked: root.refreshRequested()
            }
            OVButton {
                enabled: !root.work.failed && !root.work.session.upgrading
                kind: OVButton.Primary
                objectName: "encodeSaveButton"
                text: qsTr("保存")
                toolTip: root.work.session.upgrading ? qsTr("设备正在升级，不能保存修改") : ""
                onClicked: root.work.save()
            }
        }
    }
}
