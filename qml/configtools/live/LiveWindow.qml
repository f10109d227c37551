// The live window: channels on the left, live views on the right. It is opened for one device, the first one
// (LiveDevice). Further devices (LiveCompanion) can be added. Each has a separate session, which ends when the device
// is removed, the window is opened for another first device, or the window is closed.
import QtQuick
import QtQuick.Templates as T
import configtools

T.ApplicationWindow {
    id: window

    required property Batches batches  // starts batches for all pages; one batch runs at a time
    required property BusyState busyState  // running work of all pages, and the actions that it blocks
    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    required property var localConfig  // a CLocalConfig: the settings of the application
    property string storedGeometry  // see WindowGeometry.stored
    readonly property bool fullScreen: visibility === Window.FullScreen
    readonly property bool maximised: visibility === Window.Maximized
    property alias figuresShown: grid.figuresShown
    property alias stretched: grid.stretched
    property int visibilityBefore: Window.Windowed  // before the full screen
    property int firstChannel: 0   // channel of the first device to show after the login; 0 or less: the first ones
    property string earlier        // "address:port" of the previous and the next device, "" for none
    property string later
    signal notify(string message, int severity)  // the main window shows this message; severity: of OVToast

    /// Opens the window for the device at `ipport` ("address:port"). `channel` is the first channel to show (from 0;
    /// -1: none is preferred). `table` is the list of the device, a DeviceTableModel: its ticked devices can be added.
    /// `chosen` are the devices to step through instead of its rows: maps with "ipport" and "name". All except `ipport`
    /// are optional.
    function open(ipport, channel, table, chosen) {
        order.table = table ?? null;
        order.chosen = chosen ?? [];
        openDevice(ipport, channel ?? -1);
    }

    /// Logs in to the device as the first one and removes the added ones. If it is open already, only shows the
    /// channel; if its login runs, only activates the window. Parameters: see open().
    function openDevice(ipport, channel) {
        if (visible && device.ipport === ipport && (device.loggedIn || device.busy)) {
            if (channel >= 0 && channel < device.channels.length)
                grid.showChannel(channel);
            findNeighbours();
            requestActivate();
            return;
        }
        snapshots.hide();  // those of another device
        toasts.item?.clear();
        removeAll();
        grid.sounding = false;
        firstChannel = channel;
        if (!visible)
            show();
        raise();
        requestActivate();
        device.open(ipport);
        findNeighbours();
    }

    /// See WindowGeometry.text().
    function geometryText() {
        return geometry.text();
    }

    /// Updates `earlier` and `later` from the order of the devices; both are "" while the window is closed.
    function findNeighbours() {
        earlier = visible ? order.neighbour(device.ipport, -1) : "";
        later = visible ? order.neighbour(device.ipport, 1) : "";
    }

    /// Opens the previous device (-1) or the next one (1); nothing if there is none.
    function go(direction) {
        findNeighbours();  // the list may have changed
        const next = direction < 0 ? earlier : later;
        if (next !== "")
            openDevice(next, -1);
    }

    /// Adds the ticked devices of the list, and shows their channels as far as the grid has room. A toast reports
    /// devices that were left out, and that all are added already.
    function addTicked() {
        const added = watched.add(order.tickedDevices());
        if (watched.leftOut > 0)
            toasts.instance().show(qsTr("最多加入 %1 台设备，其余 %2 台没有加入").arg(watched.most).arg(watched.leftOut),
                OVToast.Information);
        else if (added.length === 0)
            toasts.instance().show(qsTr("勾选的设备都已在画面中"), OVToast.Information);
        grid.include(added);
    }

    /// Removes an added device and ends its session. Its snapshots end first, as they use the session.
    function remove(ipport) {
        snapshots.leave(ipport);
        watched.remove(ipport);
    }

    /// Same for all added devices.
    function removeAll() {
        snapshots.leaveAll();
        watched.clear();
    }

    /// Reads the names of the devices from the device list again.
    function readNames() {
        device.name = deviceFactory.getDeviceInfo("dh", device.ipport).name ?? device.name;
        noteDevice();
        watched.readNames();
    }

    /// Passes the first device and its channels to the list of all channels.
    function noteDevice() {
        watched.setFirst(device.ipport, device.name, device.channels);
    }

    function toggleFullScreen() {
        if (fullScreen) {
            visibility = visibilityBefore;
        } else {
            visibilityBefore = maximised ? Window.Maximized : Window.Windowed;
            showFullScreen();
        }
    }

    /// Leaves the enlarged view; without one, the full screen.
    function goBack() {
        if (grid.enlargedCell >= 0)
            grid.enlargedCell = -1;
        else if (fullScreen)
            toggleFullScreen();
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
        snapshots.hide();
        snapshots.stop();
        removeAll();
        device.close();
    }

    WindowGeometry {
        id: geometry
        stored: window.storedGeometry
        window: window
    }
    LiveDevice {
        id: device
        deviceFactory: window.deviceFactory
        onLost: {
            window.notify(qsTr("已登录另一台设备，实时画面已关闭"), OVToast.Information);
            window.close();
        }
        onChecked: isReachable => grid.takeCheckResult(null, isReachable)
        onChannelsChanged: window.noteDevice()
        onOpened: {
            grid.begin();
            if (window.firstChannel > 0)
                grid.showChannel(Math.min(window.firstChannel, channels.length - 1));
        }
        onRenewed: grid.reconnect(null)
    }
    LiveOrder {
        id: order
        deviceFactory: window.deviceFactory
        onCountChanged: window.findNeighbours()
    }
    WatchedDevices {
        id: watched
        deviceFactory: window.deviceFactory
        onChannelsChanged: grid.adopt(Array.from(channels))  // copy: the list changes with the model
    }
    DeviceListChanges {
        deviceFactory: window.deviceFactory
        shown: window.visible
        onReadingRequested: window.readNames()
    }
    // qmllint disable unqualified
    Repeater {
        model: watched

        LiveCompanion {
            id: companion
            deviceFactory: window.deviceFactory
            onChecked: isReachable => grid.takeCheckResult(companion, isReachable)
            onChannelsChanged: watched.setChannels(ipport, companion, channels)
            onRenewed: grid.reconnect(companion)
            Component.onCompleted: watched.setChannels(ipport, companion, channels)
        }
    }
    // qmllint enable unqualified
    LiveSnapshots {
        id: snapshots
        batches: window.batches
        busyState: window.busyState
        channels: grid.channels
        deviceFactory: window.deviceFactory
        shown: window.visible
        onNotify: (message, severity) => window.notify(message, severity)
    }

    Shortcut { sequence: "Esc"; onActivated: window.goBack() }
    Shortcut { sequence: "F11"; onActivated: window.toggleFullScreen() }
    Shortcut { sequence: "PgUp"; onActivated: window.go(-1) }
    Shortcut { sequence: "PgDown"; onActivated: window.go(1) }
    Shortcut { sequence: "A"; enabled: toolBar.canAdd; onActivated: window.addTicked() }
    Shortcut { sequence: "M"; onActivated: grid.sounding = !grid.sounding }
    Shortcut { sequence: "I"; onActivated: grid.figuresShown = !grid.figuresShown }

    LiveTitleBar {
        id: titleBar
        width: parent.width
        height: window.fullScreen ? 0 : implicitHeight
        address: device.ipport
        cursor: window.localConfig
        hasEarlier: window.earlier !== ""
        hasLater: window.later !== ""
        maximised: window.maximised
        name: device.name
        position: {
            const position = order.count > 1 && device.ipport !== "" ? order.positionOf(device.ipport) : -1;
            return order.count <= 1 ? "" : (position < 0 ? "–" : position + 1) + " / " + order.count;
        }
        visible: !window.fullScreen
        onCloseRequested: window.close()
        onEarlierRequested: window.go(-1)
        onLaterRequested: window.go(1)
        onMaximiseRequested: window.maximised ? window.showNormal() : window.showMaximized()
    }
    LiveChannelList {
        id: list
        y: titleBar.height
        width: visible ? Theme.liveListWidth : 0
        height: parent.height - y
        channels: grid.channels
        currentChannel: grid.currentChannel
        shownChannels: grid.shownChannels
        visible: !window.fullScreen && grid.channels.length > 1
        onEnlargeRequested: channel => grid.enlarge(channel)
        onChannelClicked: channel => grid.showChannel(channel)
        onRemovalRequested: ipport => window.remove(ipport)
    }
    LiveGrid {
        id: grid
        x: list.width
        y: titleBar.height
        width: parent.width - x
        height: toolBar.y - y
        active: window.visible && device.loggedIn
        objectName: "liveGrid"
        visible: device.loggedIn && device.channels.length > 0
        onCheckRequested: device.check()
        onFailed: device.expireResponse()
        onFrameReceived: device.noteResponse()
    }
    LiveToolBar {
        id: toolBar
        x: list.width
        y: parent.height - height
        width: parent.width - x
        canSnap: device.loggedIn && device.channels.length > 0
        canSnapCurrent: canSnap && (grid.currentEntry?.companion?.loggedIn ?? true)
        full: watched.full
        fullScreen: window.fullScreen
        grid: grid
        otherBatch: window.batches.running && !snapshots.batch ? window.batches.current.title : ""
        several: grid.channels.some(entry => entry.companion)
        snapping: snapshots.busy
        ticked: order.ticked
        onAdditionRequested: window.addTicked()
        onFullScreenRequested: window.toggleFullScreen()
        onSnapAllRequested: snapshots.takeAll()
        onSnapRequested: snapshots.take(grid.currentEntry)
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
                : device.waitingForRetry ? qsTr("%1，%n 秒后重试", "", device.retrySeconds).arg(device.failure) : device.failure
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
        id: toasts
        visible: false
        sourceComponent: OVToast {
            area: Qt.rect((window.width - Theme.toastWidth) / 2, titleBar.height + Theme.unit, Theme.toastWidth, 0)
            objectName: "liveToasts"
        }
    }
    // qmllint enable unqualified
}
