// Upgrades of the table's devices: their files, starting and stopping them, and keeping their rows up to date.
import QtQuick
import configtools

Item {
    id: root

    required property var deviceFactory
    required property var deviceTable  // a DeviceTableModel
    required property var fileDialogs
    required property bool shown
    property bool running: false
    property int percent: 0
    signal changed  // any row may have
    signal said(string message, int kind)

    property var followed: []  // identities of the rows that change
    property var ofDocument: []
    property bool followsAll: false
    property bool outdated: false

    function chooseFileForChecked() {
        if (deviceTable.checkedCount === 0)
            said(qsTr("请选择一台设备"), OVToast.Error);
        else
            chooseFile(deviceTable.checkedMacs());
    }

    function chooseFile(identities) {
        fileDialogs.chooseFile(qsTr("选择升级文件"),
                               [qsTr("升级文件") + " (*.bin *.img *.upg)", qsTr("所有文件") + " (*)"], path => {
            identities.forEach(identity => deviceFactory.setUpgradeFilePath("dh", identity, path));
            changed();
            const refused = identities.filter(identity => UpgradeTools.isFailure(resultOf(identity))).length;
            if (refused > 0)
                //: Of the devices that a file was chosen for.
                said(qsTr("%n 台设备不能用此文件升级，请查看结果", "", refused), OVToast.Error);
        });
    }

    function resultOf(identity) {
        return deviceFactory.getDeviceDetail("dh", identity).upgraderes ?? UpgradeTools.None;
    }

    function startChecked() {
        if (deviceTable.checkedCount === 0)
            said(qsTr("请选择一台设备"), OVToast.Error);
        else
            start(deviceTable.checkedRows());
    }

    /// Those that may go well another time, also those that the filter hides.
    function retry() {
        const rows = deviceFactory.upgradesToRetry("dh").map(
            identity => Object.assign({}, deviceFactory.getDeviceDetail("dh", identity), {identity: identity}));
        if (rows.length === 0)
            said(qsTr("没有可以重试的设备"), OVToast.Information);
        else
            start(rows);
    }

    function start(rows) {
        const idle = rows.filter(row => !UpgradeTools.isRunning(row.upgraderes ?? UpgradeTools.None));
        const ready = idle.filter(row => (row.filepath ?? "") !== "");
        if (ready.length < idle.length) {
            //: Of the devices that are to be upgraded.
            said(qsTr("%n 台设备未选择升级文件", "", idle.length - ready.length), OVToast.Error);
            return;
        }
        if (ready.length === 0)
            return;
        const box = question.wanted();
        box.identities = ready.map(row => row.identity);
        box.show(qsTr("即将升级 %n 台设备。升级期间设备会重启，请勿断电。", "", ready.length), OVMessageBox.Question);
    }

    function run(identities) {
        followed = Array.from(new Set(followed.concat(identities)));
        percent = 0;
        deviceFactory.startUpgrade("dh", identities);
        running = deviceFactory.hasDeviceUpgrading();
    }

    function stop(identity) {
        deviceFactory.stopUpgrade("dh", identity);
    }

    /// Also those that the filter hides, or that are not in the table.
    function stopAll() {
        followed.concat(ofDocument).forEach(identity => stop(identity));
    }

    /// A document's devices are upgraded, by MAC or else by address and port. Any row may be among them.
    function followDocument(identities) {
        ofDocument = ofDocument.concat(identities);
        followsAll = true;
        percent = 0;
        running = deviceFactory.hasDeviceUpgrading();
        changed();
    }

    function update() {
        outdated = false;
        if (followsAll || !shown)
            changed();
        else
            followed.forEach(identity => deviceTable.refreshDevice(identity));
    }

    function end() {
        running = deviceFactory.hasDeviceUpgrading();
        const results = followed.map(identity => resultOf(identity));
        const failed = results.filter(result => UpgradeTools.isFailure(result)).length;
        update();
        if (running)
            return;
        if (failed > 0)
            //: Of the devices that were upgraded.
            said(qsTr("%n 台设备未升级成功，请查看结果", "", failed), OVToast.Error);
        else if (results.length > 0)
            said(qsTr("%n 台设备升级成功", "", results.length), OVToast.Success);
        deviceFactory.refreshDevices("dh", followed.concat(ofDocument));
        followed = [];
        ofDocument = [];
        followsAll = false;
    }

    visible: false

    Connections {
        target: root.deviceFactory

        function onSignalUpdateSchedule(value) {
            root.percent = value;
            root.outdated = true;
        }
        function onSignalShowUpgradeFinishTip() {
            root.end();
        }
    }
    Timer {
        interval: root.followsAll ? 1000 : 250
        repeat: true
        running: root.running
        onTriggered: if (root.outdated) root.update()
    }
    // qmllint disable unqualified
    OVOnDemand {
        id: question
        visible: false
        sourceComponent: OVMessageBox {
            property var identities: []
            objectName: "upgradeQuestion"
            onAccepted: root.run(identities)
        }
    }
    // qmllint enable unqualified
}
