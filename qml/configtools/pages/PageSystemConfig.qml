// The system page: device tree on the left, maintenance commands for the ticked devices on the right.
import QtQuick
import configtools

FocusScope {
    id: page

    required property Batches batches
    property DeviceSearch search: null
    readonly property bool searching: search?.running ?? false
    required property bool libraryInstalled
    property DeviceNotes notes: null
    signal searchRequested
    signal liveRequested(string ipport)
    signal notify(string message, int severity)
    signal selectionChanged  // the selection changed: refusals may no longer apply

    readonly property int ticked: devices.checkedCount
    readonly property alias treeDevices: devices

    // qmllint disable unqualified
    readonly property var deviceFactory: CDeviceFactoryApi
    readonly property var fileDialogs: FileDialogsApi
    readonly property var webPages: WebPagesApi
    readonly property string timeZone: systemTimeZone
    // qmllint enable unqualified

    property list<string> passwordTicks  // devices that were ticked when the old password was checked
    property list<string> checkedWhenAsked  // devices of the last command
    property list<string> leftOut  // devices left out of the last password change

    readonly property bool available: unavailableText === ""
    readonly property string unavailableText: devices.checkedCount === 0 ? qsTr("请先在左侧勾选设备")
        : batches.running ? qsTr("“%1”正在进行，请等待其完成").arg(batches.current?.title ?? "") : ""

    function focusSearch() {
        deviceTree.focusSearch();
    }

    /// Called when another tab is shown: clears the new password. A running batch continues.
    function disablePasswordEditor() {
        passwordTime.close(SystemPasswordTime.Regular);
        passwordTime.ending = SystemPasswordTime.Regular;
        panels.clearNewPassword();
    }

    function askForNewPassword() {
        passwordTicks = devices.tickedNow();
        passwordTime.begin(batch.report.devicesWith(BatchReport.Waiting));
        if (!visible)
            disablePasswordEditor();
        else if (!devices.areTicked(checkedWhenAsked))
            passwordTime.close(SystemPasswordTime.OtherTicks);
    }

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

    /// Reports the devices whose password was not changed, with the reasons.
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

    function resultText(result) {
        return result === OVTreeModel.WaitsForPassword ? qsTr("旧密码正确，等待新密码")
                                                       : deviceFactory.getErrorName(result);
    }

    function valuesOf(name) {
        return Object.assign({}, deviceFactory.getDeviceDetail("dh", name), {identity: name});
    }

    function refresh() {
        devices.resetItems(deviceTree.searchText === "" ? "removeuninit" : "search", deviceTree.searchText);
    }

    function run(command, title, targets, data) {
        if (!batch.run(command, title, targets, data))
            return;
        checkedWhenAsked = targets;
        devices.clearResults();
    }

    function runOnTicked(command, title, data) {
        preview.ask(command, title, data, devices.tickedNow(), chosen => {
            if (passwordTime.open && !batches.running)  // otherwise the command is refused
                passwordTime.close(SystemPasswordTime.OtherWork);
            run(command, title, chosen, data);
        });
    }

    /// Devices that the user unticks keep waiting for their new password.
    function changePasswords(password, keeping) {
        preview.ask("modifyPassword", qsTr("修改密码"), {}, passwordTime.devices, (chosen, others) => {
            leftOut = others;
            run("modifyPassword", qsTr("修改密码"), chosen, {password: password});
            keeper.follow(batch.batch, keeping);
            devices.setResultOfAll(leftOut, OVTreeModel.WaitsForPassword);
        });
    }

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
