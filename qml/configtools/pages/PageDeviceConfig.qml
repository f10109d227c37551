// The configuration page: device tree on the left, settings of one device on the right. The page logs in to the device
// chosen in the tree. Its encode settings (video and audio streams) can be copied to the ticked devices.
import QtQuick
import configtools

FocusScope {
    id: page

    required property Batches batches  // starts batches for all pages; one batch runs at a time
    required property BusyState busyState  // running work of all pages, and the actions that it blocks
    property DeviceSearch search: null  // null: no search is shown
    readonly property bool searching: search?.running ?? false
    required property bool libraryInstalled  // false: there is no device library, so no device can be reached
    property KnownDevices knownDevices: null  // null: no device is marked as new
    property DeviceNotes notes: null  // null: devices have no notes
    signal searchRequested  // start a search
    signal liveRequested(string ipport)  // open the live window of the device; ipport: "address:port"
    signal notify(string message, int severity, int duration)  // shows a toast; severity: of OVToast; duration in ms
    signal selectionChanged  // the number of ticked devices has changed: the window removes refusals

    readonly property int ticked: devices.checkedCount  // number of ticked devices that the filters show
    readonly property alias treeDevices: devices  // the OVTreeModel of the tree

    // qmllint disable unqualified
    readonly property var deviceFactory: CDeviceFactoryApi  // access to the device list and the devices
    readonly property var fileDialogs: FileDialogsApi  // the desktop's dialogs for files and folders
    readonly property var webPages: WebPagesApi  // opens web pages of devices in the browser
    // qmllint enable unqualified

    /// Targets of a copy, as "address:port": the ticked devices without the device that is shown.
    readonly property var targets: devices.without(devices.checkedDevices, session.device)

    /// Focuses the search field of the tree and selects its text.
    function focusSearch() {
        deviceTree.focusSearch();
    }

    /// The values of a device for DeviceActions. `name`: the name (identity) of its row.
    function valuesOf(name) {
        return Object.assign({}, deviceFactory.getDeviceDetail("dh", name), {identity: name});
    }

    /// Rebuilds the tree from the device list: the devices that contain the search text, also uninitialised ones;
    /// without a search text, the initialised devices.
    function refresh() {
        devices.resetItems(deviceTree.searchText === "" ? "removeuninit" : "search", deviceTree.searchText);
    }

    /// Runs `action` immediately if no setting is unsaved, and returns false. Otherwise asks and returns true: `action`
    /// runs after the changes are discarded or saved, and not at all if the user cancels.
    function leave(action) {
        if (session.unsaved === 0) {
            action();
            return false;
        }
        const box = question.instance();
        box.leaveAction = action;
        box.action = () => {
            session.encoding.clear();
            session.names.clear();
            action();
        };
        box.otherText = session.upgrading || !session.loggedIn ? "" : qsTr("保存并离开");
        box.okText = qsTr("放弃修改");
        box.show(qsTr("有 %n 项修改尚未保存，离开后将丢失。", "", session.unsaved), OVMessageBox.DangerQuestion);
        return true;
    }

    /// Saves, then runs `action`. If a name is invalid, shows it and does not run `action`. If changes are still
    /// unsaved after the save, the user is asked again.
    function saveAndLeave(action) {
        const faulty = session.names.unsaved > 0 && session.names.form.firstFaulty() >= 0;
        if (session.encoding.unsaved > 0)
            session.encoding.save();
        else
            session.names.save();
        if (!faulty)
            session.work.afterWriting(() => leave(action));
    }

    /// Opens the dialog that names the channels of the shown device, or channel 1 of the ticked cameras. Refused if
    /// there is neither.
    function namePattern() {
        const channels = session.names.read ? session.names.form.count : 0;
        if (!naming.instance().ask(session.device, channels, devices.tickedNow()))
            notify(qsTr("勾选的设备中没有摄像机"), OVToast.Refusal, Theme.errorToastDuration);
    }

    /// Called at the end of a batch of names with its BatchReport: reads the names of the shown device again if the
    /// batch has changed them.
    function takeNamed(report) {
        if (report.devicesWith(BatchReport.Succeeded).includes(session.device))
            session.names.clear();
        session.readShown();
    }

    /// Logs in to another device and shows it, or tries again if the shown device is not logged in. Waits for a running
    /// write and asks about unsaved changes first.
    function choose(ipport) {
        if (ipport !== session.device || !session.loggedIn && !session.busy)
            session.work.afterWriting(() => leave(() => {
                session.names.arriving = session.namesShown;
                session.open(ipport);
            }));
    }

    /// Confirms and starts the copy of the encode settings of the current channel to `targets`. The values are those on
    /// the page, with unsaved changes.
    function copy() {
        const number = session.encoding.form.channel + 1;
        //: %1 is a channel number.
        const question = qsTr("将通道 %1 的编码配置复制到选中的 %n 台设备的同一通道？", "", targets.length).arg(number)
            + (session.encoding.unsaved > 0 ? "\n" + qsTr("其中包括尚未保存的修改。") : "");
        //: The change of a device; %1 is a channel number.
        preview.instance().ask(question, qsTr("写入通道 %1 的编码配置").arg(number), Array.from(targets), {
            title: qsTr("复制编码配置"), okText: qsTr("复制"), action: chosen => copying.start(chosen)
        });
    }

    objectName: "pageDeviceConfig"
    onSearchingChanged: if (searching) devices.clearResults()
    onTickedChanged: selectionChanged()
    onVisibleChanged: if (visible) session.readShown()

    OVTreeModel {
        id: devices
        deviceFactory: page.deviceFactory
        failedMarks: page.batches.failedMarks
        knownDevices: page.knownDevices
    }

    DeviceListChanges {
        deviceFactory: page.deviceFactory
        shown: page.visible
        onReadingRequested: page.refresh()
    }
    Connections {
        target: page.deviceFactory

        function onSignalSetChannelNameFinished() {
            const row = page.deviceFactory.getDeviceInfo("dh", session.device);
            if (session.names.read && session.names.form.count === 1) {  // a camera's name is that of its channel
                const channel = Object.assign({}, session.names.form.get(0));
                page.deviceFactory.updataDeviceInfo("dh", "name", channel.saved, row.mac ?? "", session.device);
                return;
            }
            page.deviceFactory.refreshDevices("dh", [row.identity || row.mac || session.device]);  // may show a name
        }
    }

    // The next device is opened after all receivers of the signal have run.
    Timer {
        id: goingOn
        interval: 0
        onTriggered: deviceTree.chooseNext()
    }
    ConfigSession {
        id: session
        deviceFactory: page.deviceFactory
        shown: page.visible
        onLoggedInChanged: if (page.visible) page.refresh()
        onRenewed: if (page.visible) readShown()
        onNotify: (message, severity, duration) => page.notify(message, severity, duration)
    }
    Shortcut {
        enabled: page.visible && session.names.running && !page.batches.running && !page.searching
        sequence: "Escape"
        onActivated: session.names.stop()
    }
    BusyReport {
        active: session.writing  // reading is cancelled without a question
        need: BusyState.Program
        state: page.busyState
        title: qsTr("设备配置")
    }
    BusyReport {
        active: session.unsaved > 0
        need: BusyState.Edits
        state: page.busyState
        title: qsTr("设备配置")
    }
    OVBatchRefusals {
        batches: page.batches
        shown: page.visible
        onNotify: (message, severity) => page.notify(message, severity, Theme.errorToastDuration)
    }
    ConfigCopy {
        id: copying
        batches: page.batches
        deviceFactory: page.deviceFactory
        devices: devices
        onNotify: (message, severity, duration) => page.notify(message, severity, duration)
    }

    // qmllint disable unqualified
    OVOnDemand {
        id: question
        visible: false
        sourceComponent: OVMessageBox {
            property var action: null
            property var leaveAction: null

            objectName: "questionBox"
            title: qsTr("未保存的修改")
            onOtherChosen: page.saveAndLeave(leaveAction)
            onAccepted: {
                const wanted = action;
                wanted();
            }
        }
    }
    // qmllint enable unqualified

    Connections {
        target: page.batches

        function onRetried(earlier, again) {
            if (earlier === naming.batch)
                naming.batch = again;
        }
    }
    Connections {
        target: naming.batch

        function onFinished() {
            page.takeNamed(naming.batch.report);
        }
    }
    // qmllint disable unqualified
    OVOnDemand {
        id: naming
        property Batch batch: null
        visible: false
        sourceComponent: NamePatternDialog {
            deviceFactory: page.deviceFactory
            onCamerasNamed: (ipports, names) => naming.batch = page.batches.nameCameras("dh", qsTr("批量命名"), ipports, names)
            onChannelsNamed: (channels, names) => session.names.form.setNames(channels, names)
        }
    }
    // qmllint enable unqualified

    // qmllint disable unqualified
    OVOnDemand {
        id: preview
        visible: false
        sourceComponent: BatchPreviewDialog {
            deviceFactory: page.deviceFactory
        }
    }
    // qmllint enable unqualified

    DeviceActions {
        id: deviceActions
        deviceFactory: page.deviceFactory
        fileDialogs: page.fileDialogs
        notes: page.notes
        webPages: page.webPages
        onNotify: (message, severity) => page.notify(message, severity, severity === OVToast.Error ? Theme.errorToastDuration
                                                                                   : Theme.toastDuration)
    }
    DeviceMenu {
        id: menu
        actions: deviceActions
        batches: page.batches
        onLiveRequested: ipport => page.liveRequested(ipport)
        onOwnChosen: (key, values) => page.choose(values.ipport)
        tickedDevices: () => devices.tickedNow()
        onSimilarRequested: (key, values) => devices.checkSimilar(values.identity, key)
    }

    SystemDeviceTree {
        id: deviceTree
        x: Theme.pageMargin
        y: Theme.pageMargin
        width: Math.min(Theme.treePaneWidth, Math.round(page.width * Theme.treePaneShare))
        height: foot.y - y
        busyDevice: copying.running ? copying.current : session.busy ? session.device : ""
        choosing: true
        chosenDevice: session.device
        describer: copying
        devices: devices
        libraryInstalled: page.libraryInstalled
        searching: page.searching
        onDeviceChosen: ipport => page.choose(ipport)
        onMenuRequested: (name, position) => menu.openAt(position, page.valuesOf(name), [{
            key: "choose", text: qsTr("配置这台设备")
        }])
        onSearchRequested: page.searchRequested()
        onSearchTextChanged: page.refresh()
    }

    VideoConfig {
        x: deviceTree.x + deviceTree.width + Theme.pageMargin
        y: deviceTree.y
        width: page.width - x - Theme.pageMargin
        height: deviceTree.height
        hasDevices: devices.deviceCount > 0
        session: session
        targetCount: page.targets.length
        tickedCount: page.ticked
        onCopyRequested: page.copy()
        onEncodeChannelRequested: index => page.leave(() => session.encoding.choose("curChannel", index))
        onNamePatternRequested: page.namePattern()
        onNextDeviceRequested: goingOn.start()
        onNamesRefreshRequested: page.leave(() => session.names.load())
        onRefreshRequested: page.leave(() => session.encoding.load())
        onStreamTypeRequested: index => page.leave(() => session.encoding.choose("curStreamType", index))
        onTabRequested: index => page.leave(() => session.tab = index)
    }

    OVFootBar {
        id: foot
        x: Theme.pageMargin
        y: parent.height - height
        width: parent.width - 2 * Theme.pageMargin
        batches: page.batches
        search: page.search
        progress: session.names.progress
        running: session.names.running
        runningDevice: session.names.current
        runningText: qsTr("正在保存通道名称…") + qsTr("（按Esc停止）")
        //: In the status line of a page.
        text: qsTr("%n台设备已选中", "", devices.checkedCount)
        onNotify: (message, severity) => page.notify(message, severity, severity === OVToast.Error ? Theme.errorToastDuration
                                                                                   : Theme.toastDuration)
        onTickRequested: identities => devices.setCheckedDevices(identities)
    }
}
