// Watches a device: its channels at the left, their live pictures beside them.
import QtQuick
import QtQuick.Templates as T
import configtools

T.ApplicationWindow {
    id: window

    required property Batches batches
    required property BusyState busyState
    required property var deviceFactory
    required property var localConfig
    readonly property bool fullScreen: visibility === Window.FullScreen
    readonly property bool maximised: visibility === Window.Maximized
    property int visibilityBefore: Window.Windowed
    signal said(string message, int kind)

    function open(ipport) {
        if (visible && device.ipport === ipport && (device.loggedIn || device.busy)) {
            requestActivate();
            return;
        }
        results.item?.close();  // they are another device's
        grid.sounding = false;
        if (!visible)
            show();
        raise();
        requestActivate();
        device.open(ipport);
    }

    function toggleFullScreen() {
        if (fullScreen) {
            visibility = visibilityBefore;
        } else {
            visibilityBefore = maximised ? Window.Maximized : Window.Windowed;
            showFullScreen();
        }
    }

    /// One step back: from the enlarged picture to the grid, from the full screen to the window.
    function goBack() {
        if (grid.enlargedPlace >= 0)
            grid.enlargedPlace = -1;
        else if (fullScreen)
            toggleFullScreen();
    }

    function snap(channel) {
        taking.take(device.ipport, device.channels[channel]);
        results.wanted().open();
    }

    function snapAll() {
        if (taking.takeAll(device.ipport, device.channels))
            results.wanted().open();
    }

    width: Math.min(Theme.liveWidth, Screen.desktopAvailableWidth)
    height: Math.min(Theme.liveHeight, Screen.desktopAvailableHeight)
    minimumWidth: Math.min(Theme.liveMinimumWidth, Screen.desktopAvailableWidth)
    minimumHeight: Math.min(Theme.liveMinimumHeight, Screen.desktopAvailableHeight)
    color: Theme.colours.videoGround
    flags: Qt.Window | Qt.FramelessWindowHint | Qt.WindowSystemMenuHint | Qt.WindowMaximizeButtonHint
    objectName: "liveWindow"
    title: device.name !== "" ? device.name : device.ipport
    onClosing: {
        results.item?.close();
        taking.stop();
        device.close();
    }

    LiveDevice {
        id: device
        deviceFactory: window.deviceFactory
        onLost: {
            window.said(qsTr("已登录另一台设备，实时画面已关闭"), OVToast.Information);
            window.close();
        }
        onAnswered: isThere => grid.answer(isThere)
        onOpened: grid.begin()
        onRenewed: grid.reconnect()
    }
    Snapshots {
        id: taking
        batches: window.batches
        deviceFactory: window.deviceFactory
    }
    BusyReport {
        active: taking.busy && !taking.batch && window.visible
        need: BusyState.Program
        state: window.busyState
        title: qsTr("抓图")
    }

    Shortcut { sequence: "Esc"; onActivated: window.goBack() }
    Shortcut { sequence: "F11"; onActivated: window.toggleFullScreen() }
    Shortcut { sequence: "M"; onActivated: grid.sounding = !grid.sounding }
    Shortcut { sequence: "I"; onActivated: grid.figuresShown = !grid.figuresShown }

    LiveTitleBar {
        id: titleBar
        width: parent.width
        height: window.fullScreen ? 0 : implicitHeight
        address: device.ipport
        cursor: window.localConfig
        maximised: window.maximised
        name: device.name
        visible: !window.fullScreen
        onCloseRequested: window.close()
        onMaximiseRequested: window.maximised ? window.showNormal() : window.showMaximized()
    }
    LiveChannelList {
        id: list
        y: titleBar.height
        width: visible ? Theme.liveListWidth : 0
        height: parent.height - y
        channels: device.channels
        currentChannel: grid.currentChannel
        shownChannels: grid.shownChannels
        visible: !window.fullScreen && device.channels.length > 1
        onEnlargeRequested: channel => grid.enlarge(channel)
        onPicked: channel => grid.showChannel(channel)
    }
    LiveGrid {
        id: grid
        x: list.width
        y: titleBar.height
        width: parent.width - x
        height: toolBar.y - y
        active: window.visible && device.loggedIn
        channels: device.channels
        objectName: "liveGrid"
        visible: device.loggedIn && device.channels.length > 0
        onAsked: device.look()
        onFailed: device.doubt()
        onPictureCame: device.noteAlive()
    }
    LiveToolBar {
        id: toolBar
        x: list.width
        y: parent.height - height
        width: parent.width - x
        canSnap: device.loggedIn && device.channels.length > 0
        fullScreen: window.fullScreen
        grid: grid
        otherBatch: window.batches.running && !taking.batch ? window.batches.current.title : ""
        snapping: taking.busy
        onFullScreenRequested: window.toggleFullScreen()
        onSnapAllRequested: window.snapAll()
        onSnapRequested: window.snap(grid.currentChannel)
    }
    Rectangle {
        y: titleBar.height
        width: parent.width
        height: toolBar.y - y
        color: Theme.colours.surface
        visible: !grid.visible

        OVEmptyState {
            anchors.fill: parent
            actionText: device.busy || device.loggedIn ? ""
                : device.accountRefused ? qsTr("重新登录") : qsTr("重试")
            busy: device.busy
            hint: device.busy ? device.ipport
                : device.resting ? qsTr("%1，%n 秒后重试", "", device.restSeconds).arg(device.failure) : device.failure
            iconName: "unplugged"
            objectName: "liveEmptyState"
            title: device.busy ? qsTr("正在登录…") : device.loggedIn ? qsTr("没有通道") : qsTr("登录失败")
            onActivated: device.tryAgain()
        }
    }

    OVResizeFrame {
        anchors.fill: parent
        active: !window.maximised && !window.fullScreen
        onResizeRequested: edges => window.startSystemResize(edges)
    }

    // qmllint disable unqualified
    OVOnDemand {
        id: results
        visible: false
        sourceComponent: SnapshotDialog {
            snapshots: taking
            onAgainRequested: channel => window.snap(channel)
            onFolderRequested: {
                const picture = taking.results.find(entry => entry.picture !== "").picture;
                if (!Qt.openUrlExternally(picture.slice(0, picture.lastIndexOf("/"))))
                    window.said(qsTr("无法打开文件夹：%1").arg(picture), OVToast.Error);
            }
        }
    }
    // qmllint enable unqualified
}
