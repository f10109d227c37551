// The tool bar of the live window. Left: layout, pages of channels, and a button that adds the ticked devices. Right:
// sound, aspect ratio, figures, snapshots and full screen. It changes the properties of `grid` itself; the other
// buttons emit signals.
import QtQuick
import configtools

Rectangle {
    id: root

    required property LiveGrid grid  // the live views
    required property bool fullScreen  // the window is in full screen
    required property bool canSnap  // there is a session with the first device, and it has channels
    required property bool canSnapCurrent  // there is a session with the device of the current channel
    required property bool snapping  // snapshots are in progress
    required property string otherBatch  // title of another running batch: no snapshots of all channels; "" for none
    required property int ticked         // number of ticked devices in the device list
    property bool full: false            // the maximum number of devices is added
    property bool several: false         // there are added devices
    readonly property bool compact: width < Theme.liveToolBarWidth  // no room for texts
    /// The ticked devices can be added.
    readonly property bool canAdd: canSnap && ticked > 0 && !full
    signal fullScreenRequested  // show the window in full screen, or end that if `fullScreen`
    signal snapRequested  // of the current channel
    signal snapAllRequested  // of all channels of all devices
    signal additionRequested  // of the ticked devices

    component BarButton: OVIconButton {
        property bool on: false

        checked: on
        fill: on && enabled ? Theme.colours.barPressed : Theme.colours.clear
        fillHover: Theme.colours.barHover
        fillPressed: Theme.colours.barPressed
        iconColor: Theme.colours.barSub
        iconDisabledColor: Theme.colours.barLine
        iconHoverColor: Theme.colours.barText
    }
    component Gap: Item {
        width: Theme.unit
        height: 1
    }

    implicitHeight: Theme.titleBarHeight
    color: Theme.colours.bar

    OVActionRow {
        x: Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.half

        BarButton {
            enabled: root.grid.channels.length > 0
            iconName: "oneView"
            objectName: "liveOneButton"
            on: root.grid.cellCount === 1
            toolTip: qsTr("1 画面")
            onClicked: root.grid.arrange(1)
        }
        BarButton {
            enabled: root.grid.channels.length > 1
            iconName: "fourViews"
            objectName: "liveFourButton"
            on: root.grid.cellCount === 4
            toolTip: qsTr("4 画面")
            onClicked: root.grid.arrange(4)
        }
        BarButton {
            enabled: root.grid.channels.length > 4
            iconName: "nineViews"
            objectName: "liveNineButton"
            on: root.grid.cellCount === 9
            toolTip: qsTr("9 画面")
            onClicked: root.grid.arrange(9)
        }
        Gap {}
        BarButton {
            enabled: root.grid.page > 0
            iconName: "left"
            objectName: "livePreviousButton"
            toolTip: qsTr("上一页通道")
            visible: root.grid.pages > 1
            onClicked: root.grid.showPage(root.grid.page - 1)
        }
        OVLabel {
            height: Theme.controlHeight
            color: Theme.colours.barSub
            font: Theme.figureFont
            objectName: "livePage"
            text: (root.grid.page + 1) + " / " + root.grid.pages
            visible: root.grid.pages > 1
        }
        BarButton {
            enabled: root.grid.page < root.grid.pages - 1
            iconName: "right"
            objectName: "liveNextButton"
            toolTip: qsTr("下一页通道")
            visible: root.grid.pages > 1
            onClicked: root.grid.showPage(root.grid.page + 1)
        }
        Gap {}
        OVAbstractButton {
            id: addition
            enabled: root.canAdd
            height: Theme.controlHeight
            implicitWidth: caption.implicitWidth + 2 * Theme.unit
            objectName: "liveAddButton"
            toolTip: root.full ? qsTr("画面中已有足够多的设备")
                : root.ticked === 0 ? qsTr("请先在设备列表中勾选要一起查看的设备")
                : qsTr("把列表中勾选的设备的通道加入画面（A）")
            onClicked: root.additionRequested()

            contentItem: OVLabel {
                id: caption
                color: !addition.enabled ? Theme.colours.barLine
                    : addition.hovered ? Theme.colours.barText : Theme.colours.barSub
                horizontalAlignment: Text.AlignHCenter
                text: root.compact ? "+ " + root.ticked
                    : root.ticked > 0 ? qsTr("加入勾选的设备（%1）").arg(root.ticked) : qsTr("加入勾选的设备")
            }
            background: Rectangle {
                color: addition.down ? Theme.colours.barPressed
                    : addition.hovered || addition.visualFocus ? Theme.colours.barHover : Theme.colours.clear
                radius: Theme.controlRadius

                OVFocusRing { shown: addition.visualFocus }
            }
        }
    }
    OVActionRow {
        anchors.right: parent.right
        anchors.rightMargin: Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.half

        BarButton {
            iconName: root.grid.sounding ? "sound" : "mute"
            objectName: "liveSoundButton"
            on: root.grid.sounding
            toolTip: root.grid.sounding ? qsTr("关闭声音") : qsTr("打开声音")
            onClicked: root.grid.sounding = !root.grid.sounding
        }
        BarButton {
            iconName: "stretch"
            objectName: "liveStretchButton"
            on: root.grid.stretched
            toolTip: root.grid.stretched ? qsTr("保持画面比例") : qsTr("拉伸铺满")
            onClicked: root.grid.stretched = !root.grid.stretched
        }
        BarButton {
            iconName: "figures"
            objectName: "liveFiguresButton"
            on: root.grid.figuresShown
            toolTip: root.grid.figuresShown ? qsTr("隐藏码流信息") : qsTr("显示码流信息")
            onClicked: root.grid.figuresShown = !root.grid.figuresShown
        }
        Gap {}
        BarButton {
            enabled: root.canSnapCurrent && !root.snapping && root.grid.currentChannel >= 0
            iconName: "snapshot"
            objectName: "liveSnapButton"
            toolTip: root.snapping ? qsTr("正在抓图…") : qsTr("抓取当前通道")
            onClicked: root.snapRequested()
        }
        BarButton {
            enabled: root.canSnap && !root.snapping && root.otherBatch === ""
            iconName: root.snapping ? "spinner" : "snapshots"
            objectName: "liveSnapAllButton"
            toolTip: root.snapping ? qsTr("正在抓图…")
                : root.otherBatch !== "" ? qsTr("“%1”正在进行，请等待其完成").arg(root.otherBatch)
                : root.several ? qsTr("抓取全部设备的所有通道") : qsTr("抓取全部通道")
            turning: root.snapping
            onClicked: root.snapAllRequested()
        }
        Gap {}
        BarButton {
            iconName: root.fullScreen ? "leaveFullScreen" : "fullScreen"
            objectName: "liveFullScreenButton"
            toolTip: root.fullScreen ? qsTr("退出全屏") : qsTr("全屏")
            onClicked: root.fullScreenRequested()
        }
    }
}
