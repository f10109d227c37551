// The system page: device tree on the left, maintenance commands for the ticked devices on the right. Each command is
// one batch. The results are shown in the tree. A password change has two commands: "loginCheck" checks the old
// password, and the devices that accept it wait; within a minute (SystemPasswordTime) the user enters the new password,
// which "modifyPassword" sends to them.
import QtQuick
import configtools

FocusScope {
    id: page

    required property Batches batches  // starts batches for all pages; one batch runs at a time
    property DeviceSearch search: null  // null: no search is shown
    readonly property bool searching: search?.running ?? false
    required property bool libraryInstalled  // false: there is no device library, so no device can be reached
    property KnownDevices knownDevices: null  // null: no device is marked as new
    property DeviceNotes notes: null  // null: devices have no notes
    signal searchRequested  // start a search
    signal liveRequested(string ipport)  // open the live window of the device; ipport: "address:port"
    signal notify(string message, int severity)  // show this message; severity: an OVToast.Severity
    signal selectionChanged  // the number of ticked devices has changed: the window removes refusals

    readonly property int ticked: devices.checkedCount  // number of ticked devices that the filters show
    readonly property alias treeDevices: devices  // the OVTreeModel of the tree

    // qmllint disable unqualified
    readonly property var deviceFactory: CDeviceFactoryApi  // access to the device list and the devices
    readonly property var fileDialogs: FileDialogsApi  // the desktop's dialogs for files and folders
    readonly property var webPages: WebPagesApi  // opens web pages of devices in the browser
    readonly property string timeZone: systemTimeZone  // of this computer, as "UTC+08:00" or "UTC-5:00"
    // qmllint enable unqualified

    property list<string> passwordTicks  // devices ("address:port") that were ticked when the old password was accepted
    property list<string> checkedWhenAsked  // devices ("address:port") of the last command, or ticked at its retry
    property list<string> leftOut  // devices ("address:port") that the user unticked in the last "modifyPassword"

    /// A command can start: devices are ticked and no batch runs.
    readonly property bool available: unavailableText === ""
    /// Why no command can start; "" if one can.
    readonly property string unavailableText: devices.checkedCount === 0 ? qsTr("请先在左侧勾选设备")
        : batches.running ? qsTr("“%1”正在进行，请等待其完成").arg(batches.current?.title ?? "") : ""

    /// Focuses the search field of the tree and selects its text.
    function focusSearch() {
        deviceTree.focusSearch();
    }

    /// Called when another tab is shown: ends the time for the new password and clears the typed one. A running batch
    /// continues.
    function disablePasswordEditor() {
        passwordTime.close(SystemPasswordTime.Regular);
        passwordTime.ending = SystemPasswordTime.Regular;
        panels.clearNewPassword();
    }

    /// Called when devices have accepted the old password: starts the time for the new one. It ends immediately if the
    /// page is hidden or other devices are ticked now.
    function askForNewPassword() {
        passwordTicks = devices.tickedNow();
        passwordTime.begin(batch.report.devicesWith(BatchReport.Waiting));
        if (!visible)
            disablePasswordEditor();
        else if (!devices.areTicked(checkedWhenAsked))
            passwordTime.close(SystemPasswordTime.OtherTicks);
    }

    /// Called at the end of a password change: stores the account as chosen and notifies the result. The typed
    /// passwords are cleared when no device has the old password any more.
    function takeChangedPasswords() {
        keeper.keep();
        if (keeper.message !== "")
            notify(keeper.message, keeper.failure !== "" ? OVToast.Error : OVToast.Success);
        notifyUnchangedPasswords();
        const left = batch.report.devicesLeft(leftOut);
        passwordTime.takeResults(left);
        if (left.length > 0)
            return;
        panels.clearNewPassword();
        panels.clearOldPassword();
    }

    /// Notifies the number of devices whose password was not changed, with up to three reasons. Silent if all were
    /// changed.
    function notifyUnchangedPasswords() {
        const unchanged = batch.report.devicesNotSucceeded();
        if (unchanged.length === 0)
            return;
        const shown = 3;
        const reasons = Array.from(new Set(Array.from(batch.batch.messagesOf(unchanged), entry => entry.message)));
        //: %1 are the reasons.
        notify(qsTr("%n 台设备的密码没有修改（%1），已标记", "", unchanged.length)
                 .arg(reasons.slice(0, shown).join(qsTr("；")) + (reasons.length > shown ? "…" : "")), OVToast.Error);
    }

    /// The text of a result in the tree, for its tool tip. `result`: a LoginResult or an OVTreeModel.Result.
    function resultText(result) {
        return result === OVTreeModel.WaitsForPassword ? qsTr("旧密码正确，等待新密码")
                                                       : deviceFactory.getErrorName(result);
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

    /// Starts a command without a question and clears the results in the tree. Returns false, and does nothing else,
    /// after a refusal, which is notified. `targets` are "address:port"; the other parameters: see SystemBatch.run().
    function run(command, title, targets, data) {
        if (!batch.run(command, title, targets, data))
            return false;
        checkedWhenAsked = targets;
        devices.clearResults();
        return true;
    }

    /// Confirms a command for the ticked devices, see SystemPreview.ask(), and starts it. A started command ends the
    /// time for the new password. Parameters: see SystemBatch.run().
    function runOnTicked(command, title, data) {
        preview.ask(command, title, data, devices.tickedNow(), chosen => {
            if (passwordTime.open && !batches.running)  // otherwise the command is refused
                passwordTime.close(SystemPasswordTime.OtherWork);
            run(command, title, chosen, data);
        });
    }

    /// Confirms and starts the password change of the devices that have accepted the old password. Devices that the
    /// user unticks there keep waiting for their new password. After a refusal of the start, all devices keep waiting.
    /// `keeping`: an AccountList.Keeping.
    function changePasswords(password, keeping) {
        preview.ask("modifyPassword", qsTr("修改密码"), {}, passwordTime.devices, (chosen, others) => {
            if (!run("modifyPassword", qsTr("修改密码"), chosen, {password: password}))
                return;
            leftOut = others;
            keeper.follow(batch.batch, keeping);
            devices.setResultOfAll(leftOut, OVTreeModel.WaitsForPassword);
        });
    }

    /// Handles the end of the batch of the last command, according to the command.
    function takeEnd() {
        if (batch.report.waiting === 0)
            refresh();  // the set of logged-out devices has changed
        if (batch.command === "readTime")
            panels.clocks = batch.batch.messagesOf(checkedWhenAsked);
        else if (batch.command === "loginCheck" && batch.report.waiting > 0)
            askForNewPassword();
        else if (batch.command === "modifyPassword")
            takeChangedPasswords();
    }

    objectName: "pageSystemConfig"
    onSearchingChanged: if (searching) devices.clearResults()
    onTickedChanged: selectionChanged()

    OVTreeModel {
        id: devices
        deviceFactory: page.deviceFactory
        failedMarks: page.batches.failedMarks
        knownDevices: page.knownDevices
        onCheckedDevicesChanged: {
            if (passwordTime.open && !areTicked(page.passwordTicks))
                passwordTime.close(SystemPasswordTime.OtherTicks);
        }
    }

    DeviceListChanges {
        deviceFactory: page.deviceFactory
        shown: page.visible
        onReadingRequested: page.refresh()
    }

    SystemBatch {
        id: batch
        batches: page.batches
        onFinished: page.takeEnd()
        onRetried: page.checkedWhenAsked = devices.tickedNow()
        onResulted: (ipports, results) => devices.takeResults(ipports, results, [])
    }
    AccountKeeper {
        id: keeper
        batches: page.batches
    }
    OVBatchRefusals {
        batches: page.batches
        shown: page.visible
        onNotify: (message, severity) => page.notify(message, severity)
    }
    SystemPasswordTime {
        id: passwordTime
        changing: batch.running && batch.command === "modifyPassword"
        onOpenChanged: if (!open) preview.withdraw("modifyPassword")
        deviceFactory: page.deviceFactory
        objectName: "passwordTime"
        onEnded: {
            batch.cancelWaiting(qsTr("修改密码"));
            if (ending === SystemPasswordTime.TimeOver)
                page.notify(qsTr("时间已到，%n 台设备的密码没有修改", "", leftCount), OVToast.Error);
            else if (ending === SystemPasswordTime.OtherWork)
                page.notify(qsTr("已开始其他操作，%n 台设备的密码没有修改", "", leftCount), OVToast.Error);
        }
    }

    SystemPreview {
        id: preview
        deviceFactory: page.deviceFactory
    }

    DeviceActions {
        id: deviceActions
        deviceFactory: page.deviceFactory
        fileDialogs: page.fileDialogs
        notes: page.notes
        webPages: page.webPages
        onNotify: (message, severity) => page.notify(message, severity)
    }
    DeviceMenu {
        id: menu
        actions: deviceActions
        batches: page.batches
        onLiveRequested: ipport => page.liveRequested(ipport)
        tickedDevices: () => devices.tickedNow()
        onSimilarRequested: (key, values) => devices.checkSimilar(values.identity, key)
    }

    SystemDeviceTree {
        id: deviceTree
        x: Theme.pageMargin
        y: Theme.pageMargin
        width: Math.min(Theme.treePaneWidth, Math.round(page.width * Theme.treePaneShare))
        height: foot.y - y
        busyDevice: batch.device
        describer: page
        devices: devices
        locked: batch.running
        libraryInstalled: page.libraryInstalled
        searching: page.searching
        onDetailRequested: name => deviceActions.showDetail(page.valuesOf(name))
        onMenuRequested: (name, position) => menu.openAt(position, page.valuesOf(name), [])
        onSearchRequested: page.searchRequested()
        onSearchTextChanged: page.refresh()
    }

    SystemPanels {
        id: panels
        x: deviceTree.x + deviceTree.width + Theme.pageMargin
        y: deviceTree.y
        width: page.width - x - Theme.pageMargin
        height: deviceTree.height
        available: page.available
        unavailableText: page.unavailableText
        deviceFactory: page.deviceFactory
        locked: batch.running
        passwordTime: passwordTime
        timeZone: page.timeZone
        upgradingCount: devices.checkedUpgradingCount
        onActionRequested: (command, title, data) => page.runOnTicked(command, title, data)
        onPasswordChangeRequested: (password, keeping) => page.changePasswords(password, keeping)
        onPasswordCheckRequested: password => {
            passwordTime.close(SystemPasswordTime.Regular);
            page.runOnTicked("loginCheck", qsTr("验证旧密码"), {password: password});
        }
        onRebootRequested: page.runOnTicked("rebootDevice", qsTr("重启设备"), {})
        onRefused: message => page.notify(message, OVToast.Error)
        onResetRequested: page.runOnTicked("resetSystem", qsTr("恢复出厂设置"), {})
    }

    OVFootBar {
        id: foot
        x: Theme.pageMargin
        y: parent.height - height
        width: parent.width - 2 * Theme.pageMargin
        batches: page.batches
        search: page.search
        //: In the status line of a page.
        text: qsTr("%n台设备已选中", "", devices.checkedCount)
        onNotify: (message, severity) => page.notify(message, severity)
        onTickRequested: identities => devices.setCheckedDevices(identities)
    }
}
