// Maintenance of many devices at once: which ones at the left, what is done with them at the right.
import QtQuick
import configtools

FocusScope {
    id: page

    required property Batches batches
    property DeviceSearch search: null
    readonly property bool searching: search?.running ?? false
    required property bool libraryInstalled
    signal searchRequested
    signal said(string message, int kind)

    // qmllint disable unqualified
    readonly property var deviceFactory: CDeviceFactoryApi
    readonly property string timeZone: systemTimeZone
    // qmllint enable unqualified

    property string passwordTicks  // the ticked devices when the old password was checked
    property var checkedWhenAsked: []  // the devices of the last command

    readonly property bool available: devices.checkedCount > 0 && !batch.running

    function focusSearch() {
        deviceTree.focusSearch();
    }

    /// The user turns to another tab: what was typed of the new password is forgotten. A batch that runs goes on.
    function disablePasswordEditor() {
        passwordTime.close(SystemPasswordTime.Regular);
        passwordTime.ending = SystemPasswordTime.Regular;
        panels.forgetNewPassword();
    }

    /// The same text for the same devices: their order in the tree may change.
    function namesOf(ipports) {
        return String(Array.from(ipports).sort());
    }

    function askForNewPassword() {
        passwordTicks = namesOf(devices.checkedDevices);
        passwordTime.begin(batch.report.devicesWith(BatchReport.Waiting));
        if (!visible)
            disablePasswordEditor();
        else if (passwordTicks !== namesOf(checkedWhenAsked))
            passwordTime.close(SystemPasswordTime.OtherTicks);
    }

    function takeChangedPasswords() {
        const left = batch.report.devicesNotSucceeded();
        passwordTime.takeResults(left);
        if (left.length > 0)
            return;
        panels.forgetNewPassword();
        panels.clearOldPassword();
    }

    function wordOfResult(result) {
        return result === OVTreeModel.WaitsForPassword ? qsTr("旧密码正确，等待新密码")
                                                       : deviceFactory.getErrorName(result);
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
        if (passwordTime.open)
            passwordTime.close(SystemPasswordTime.OtherWork);
        run(command, title, Array.from(devices.checkedDevices), data);  // a copy: the list itself follows the ticks
    }

    function takeEnd() {
        if (batch.command === "loginCheck" && batch.report.waiting > 0)
            askForNewPassword();
        else if (batch.command === "modifyPassword")
            takeChangedPasswords();
    }

    /// Runs a command that takes no data, once the user has said yes to `words`.
    function ask(words, okText, command, title) {
        const box = question.wanted();
        box.okText = okText;
        box.action = {command: command, title: title};
        box.show(words, OVMessageBox.DangerQuestion);
    }

    objectName: "pageSystemConfig"

    OVTreeModel {
        id: devices
        deviceFactory: page.deviceFactory
        failedMarks: page.batches.failedMarks
        onCheckedDevicesChanged: {
            if (passwordTime.open && page.namesOf(checkedDevices) !== page.passwordTicks)
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
        onRetried: page.checkedWhenAsked = Array.from(devices.checkedDevices)
        onResulted: (ipports, results) => devices.setResults(ipports, results.map(
            result => result === BatchReport.Waiting ? OVTreeModel.WaitsForPassword : result))
    }
    OVBatchRefusals {
        batches: page.batches
        shown: page.visible
        onSaid: (message, kind) => page.said(message, kind)
    }
    SystemPasswordTime {
        id: passwordTime
        changing: batch.running && batch.command === "modifyPassword"
        deviceFactory: page.deviceFactory
        objectName: "passwordTime"
        onEnded: {
            batch.giveUpWaiting(qsTr("修改密码"));
            if (ending === SystemPasswordTime.TimeOver)
                page.said(qsTr("时间已到，%n 台设备的密码没有修改", "", leftCount), OVToast.Error);
            else if (ending === SystemPasswordTime.OtherWork)
                page.said(qsTr("已开始其他操作，%n 台设备的密码没有修改", "", leftCount), OVToast.Error);
        }
    }

    // qmllint disable unqualified
    OVOnDemand {
        id: question
        visible: false
        sourceComponent: OVMessageBox {
            property var action: null

            objectName: "questionBox"
            onAccepted: page.runOnTicked(action.command, action.title, {})
        }
    }
    // qmllint enable unqualified

    SystemDeviceTree {
        id: deviceTree
        x: Theme.pageMargin
        y: Theme.pageMargin
        width: Theme.treePaneWidth
        height: foot.y - y
        busyDevice: batch.device
        describer: page
        devices: devices
        held: batch.running
        libraryInstalled: page.libraryInstalled
        searching: page.searching
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
        deviceFactory: page.deviceFactory
        held: batch.running
        passwordTime: passwordTime
        timeZone: page.timeZone
        upgradingCount: devices.checkedUpgradingCount
        onActionRequested: (command, title, data) => page.runOnTicked(command, title, data)
        onPasswordChangeRequested: password => page.run("modifyPassword", qsTr("修改密码"), passwordTime.devices,
                                                        {password: password})
        onPasswordCheckRequested: password => {
            passwordTime.close(SystemPasswordTime.Regular);
            page.runOnTicked("loginCheck", qsTr("验证旧密码"), {password: password});
        }
        onRebootRequested: page.ask(qsTr("确定要重启选中的 %n 台设备吗？", "", devices.checkedCount), qsTr("重启"),
                                    "rebootDevice", qsTr("重启设备"))
        onRefused: message => page.said(message, OVToast.Error)
        onResetRequested: page.ask(qsTr("确定要将选中的 %n 台设备恢复出厂设置吗？", "", devices.checkedCount),
                                   qsTr("恢复出厂设置"), "resetSystem", qsTr("恢复出厂设置"))
    }

    OVFootBar {
        id: foot
        x: Theme.pageMargin
        y: parent.height - height
        width: parent.width - 2 * Theme.pageMargin
        batches: page.batches
        search: page.search
        //: At the foot of a page.
        text: qsTr("%n台设备已选中", "", devices.checkedCount)
        onSaid: (message, kind) => page.said(message, kind)
        onTickRequested: identities => devices.setCheckedDevices(identities)
    }
}
