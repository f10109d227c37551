// The right side of the configuration page: its three tabs and the state of the device. Before the settings of a tab
// are read, it shows the reason and an action instead.
import QtQuick
import configtools

Rectangle {
    id: root

    required property ConfigSession session  // the login to the device, and the settings that were read
    required property bool hasDevices  // the tree has a device
    required property int targetCount  // number of devices that a copy of the encode settings would write to
    required property int tickedCount  // number of ticked devices in the tree
    /// The settings of the current tab were read: its panel is shown.
    readonly property bool shown: session.encodeShown ? session.encoding.read
        : session.imageShown ? session.image.read : session.names.read
    /// No device is chosen, but ticked cameras can be named.
    readonly property bool canName: session.device === "" && session.namesShown && tickedCount > 0
    signal tabRequested(int index)  // show the tab with this index
    signal encodeChannelRequested(int index)  // read the encode settings of the channel with this index
    signal streamTypeRequested(int index)  // read the type of the main stream with this index
    signal refreshRequested  // read the encode settings again
    signal namesRefreshRequested  // read the channel names again
    signal namePatternRequested  // open the dialog that names by a pattern
    signal nextDeviceRequested  // open the next device of the tree
    signal copyRequested  // copy the encode settings to the ticked devices

    border.color: Theme.colours.line
    border.width: Theme.line
    color: Theme.colours.surface
    radius: Theme.paneRadius

    OVTabBar {
        id: tabs
        x: Theme.line
        y: Theme.line
        width: parent.width - 2 * x
        color: Theme.colours.clear
        currentIndex: root.session.tab
        namePrefix: "configTab"
        tabs: [qsTr("编码配置"), qsTr("视频配置"), qsTr("通道名称")]
        onActivated: index => root.tabRequested(index)
    }
    DeviceState {
        anchors.right: parent.right
        anchors.rightMargin: Theme.pageMargin
        y: Theme.line
        width: Math.max(0, parent.width - tabs.tabsWidth - 2 * Theme.pageMargin)
        height: tabs.height
        session: root.session
    }

    Item {
        x: Theme.line
        y: tabs.y + tabs.height
        width: parent.width - 2 * x
        height: parent.height - y - Theme.line

        OVOnDemand {
            anchors.fill: parent
            visible: root.shown && root.session.encodeShown
            // qmllint disable unqualified
            sourceComponent: EncodePanel {
                targetCount: root.targetCount
                work: root.session.encoding
                onChannelRequested: index => root.encodeChannelRequested(index)
                onCopyRequested: root.copyRequested()
                onRefreshRequested: root.refreshRequested()
                onStreamTypeRequested: index => root.streamTypeRequested(index)
            }
            // qmllint enable unqualified
        }
        OVOnDemand {
            anchors.fill: parent
            visible: root.shown && root.session.imageShown
            // qmllint disable unqualified
            sourceComponent: ImagePanel {
                work: root.session.image
            }
            // qmllint enable unqualified
        }
        OVOnDemand {
            anchors.fill: parent
            visible: root.shown && root.session.namesShown
            // qmllint disable unqualified
            sourceComponent: ChannelNamesPanel {
                work: root.session.names
                onNextDeviceRequested: root.nextDeviceRequested()
                onPatternRequested: root.namePatternRequested()
                onRefreshRequested: root.namesRefreshRequested()
            }
            // qmllint enable unqualified
        }
        OVEmptyState {
            anchors.fill: parent
            actionText: root.canName ? qsTr("按规则命名")
                : root.session.device === "" || root.session.busy || root.session.loggedIn ? ""
                : root.session.taken ? qsTr("继续配置")
                : root.session.canLoginAgain() ? qsTr("重新登录") : qsTr("重试")
            busy: root.session.busy
            hint: root.session.device === "" && !root.hasDevices ? qsTr("搜索到设备后，在此查看并修改它们的配置。")
                : root.canName ? qsTr("单击左侧的一台设备，在此修改它的通道名称，或者为勾选的摄像机统一命名。")
                : root.session.device === "" ? qsTr("单击左侧的一台设备，登录后在此查看并修改它的配置。")
                : root.session.busy ? root.session.device
                : root.session.taken ? qsTr("同一时间只能登录一台设备。继续配置将关闭另一台设备的实时画面。")
                : root.session.failure
            iconName: root.session.device === "" ? "config" : "unplugged"
            objectName: "configEmptyState"
            title: root.session.device === "" && !root.hasDevices ? qsTr("没有设备")
                : root.session.device === "" ? qsTr("请选择设备")
                : root.session.busy ? root.session.busyText
                : root.session.taken ? qsTr("正在查看另一台设备的实时画面")
                : root.session.lost ? qsTr("连接已断开") : qsTr("登录失败")
            visible: !root.shown
            onActivated: {
                if (root.canName)
                    root.namePatternRequested();
                else
                    root.session.tryAgain();
            }
        }
    }

    OVPanelBlocker {
        active: root.session.busy || root.session.names.running
    }
}
