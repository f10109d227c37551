// Maintenance of many devices at once: which ones at the left, what is done with them at the right.
import QtQuick
import configtools

FocusScope {
    id: page

    required property BusyState busyState
    required property bool searching
    required property bool libraryInstalled
    signal searchRequested
    signal said(string message, int kind)

    // qmllint disable unqualified
    readonly property var deviceFactory: CDeviceFactoryApi
    readonly property string timeZone: systemTimeZone
    // qmllint enable unqualified

    property bool passwordEditorEnabled: false
    property int secondsLeft: 0
    property var passwordDevices: []  // those that wait for the new password
    property string passwordTicks     // the ticked devices when the editor was opened
    readonly property bool available: devices.checkedCount > 0 && !batch.running

    function focusSearch() {
        deviceTree.focusSearch();
    }

    /// The password editor is opened on purpose and closes as soon as the user turns to another tab.
    function disablePasswordEditor() {
        if (!passwordEditorEnabled)
            return;
        passwordEditorEnabled = false;
        countdown.stop();
        passwordDevices = [];
        panels.clearNewPassword();
        deviceFactory.systemConfig("dh", "cancelLogin", {}, []);
    }

    function enablePasswordEditor() {
        passwordDevices = batch.waiting;
        passwordTicks = String(devices.checkedDevices);
        // Whoever has turned away meanwhile, or ticked others, is asked for the old password again.
        passwordEditorEnabled = true;
        secondsLeft = 60;
        countdown.restart();
        if (!visible || passwordTicks !== String(batch.devices))
            disablePasswordEditor();
    }

    function wordOfResult(result) {
        return result === OVTreeModel.WaitsForPassword ? qsTr("旧密码正确，等待新密码")
                                                       : deviceFactory.getErrorName(result);
    }

    function refresh() {
        devices.resetItems(deviceTree.searchText === "" ? "removeuninit" : "search", deviceTree.searchText);
    }

    function run(command, title, targets, dataOf) {
        devices.clearResults();
        batch.run(command, title, targets, dataOf);
    }

    function runOnTicked(command, title, dataOf) {
        run(command, title, Array.from(devices.checkedDevices), dataOf);  // a copy: the list itself follows the ticks
    }

    function takeEnd() {
        if (batch.command === "loginCheck" && batch.waiting.length > 0)
            enablePasswordEditor();
        if (batch.command === "modifyPassword" && batch.failed === 0 && !batch.stopping) {
            disablePasswordEditor();
            panels.clearOldPassword();
        }
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
        onCheckedDevicesChanged: {
            if (page.passwordEditorEnabled && String(checkedDevices) !== page.passwordTicks)
                page.disablePasswordEditor();
        }
    }

    DeviceListChanges {
        deviceFactory: page.deviceFactory
        shown: page.visible
        onReadingRequested: page.refresh()
    }

    SystemBatch {
        id: batch
        deviceFactory: page.deviceFactory
        onFinished: page.takeEnd()
        onResulted: (ipport, result) => devices.setResult(ipport,
            result === -1 ? OVTreeModel.WaitsForPassword : result)
    }

    BusyReport {
        active: batch.running
        state: page.busyState
        title: batch.title
    }
    Shortcut {
        enabled: batch.running && page.visible
        sequence: "Escape"
        onActivated: batch.stop()
    }
    Timer {
        id: countdown
        interval: 1000
        repeat: true
        onTriggered: {
            page.secondsLeft = Math.max(0, page.secondsLeft - 1);
            if (page.secondsLeft === 0 && !batch.running)
                page.disablePasswordEditor();
        }
    }

    // qmllint disable unqualified
    OVOnDemand {
        id: question
        visible: false
        sourceComponent: OVMessageBox {
            property var action: null

            objectName: "questionBox"
            onAccepted: page.runOnTicked(action.command, action.title, () => ({}))
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
        editorEnabled: page.passwordEditorEnabled
        held: batch.running
        secondsLeft: page.secondsLeft
        timeZone: page.timeZone
        upgradingCount: devices.checkedUpgradingCount
        waitingCount: page.passwordDevices.length
        onActionRequested: (command, title, dataOf) => page.runOnTicked(command, title, dataOf)
        onPasswordChangeRequested: password => page.run("modifyPassword", qsTr("修改密码"), page.passwordDevices,
                                                        () => ({password: password}))
        onPasswordCheckRequested: password => {
            page.disablePasswordEditor();
            page.runOnTicked("loginCheck", qsTr("验证旧密码"), () => ({password: password}));
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
        progress: batch.devices.length > 0 ? batch.done / batch.devices.length : 0
        running: batch.running
        runningDevice: batch.device
        runningText: batch.title + " " + Math.min(batch.done + 1, batch.devices.length) + " / " + batch.devices.length
        //: Follows a number at the foot of a page, as in "3 devices selected".
        text: devices.checkedCount + " " + qsTr("台设备已选中", "", devices.checkedCount)
            + (batch.outcome !== "" && batch.failed === 0 ? "  ·  " + batch.outcome : "")
        warning: batch.failed > 0 ? batch.outcome : ""
    }
}
