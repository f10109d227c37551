// Confirms upgrades of listed devices or of a document, with a list of the firmware of each device and of skipped
// devices with reasons. It starts nothing; the owner handles the signals.
import QtQuick
import configtools

OVDialog {
    id: root

    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    property string path  // path of the document; "" for devices of the table
    signal confirmed(var identities)  // identities of the ticked devices, including skipped ones
    signal documentConfirmed(string path, var lines)  // lines: numbers of the ticked lines in the file, as texts
    signal documentRefused(string reason)  // the document cannot be used; the dialog does not open

    /// Opens the dialog for listed devices, each with the file in its row. `identities`: names of rows.
    function ask(identities) {
        path = "";
        preview.setIdentities(identities);
        open();
    }

    /// Reads a document (the path of a workbook) in the background. Then the dialog opens, or documentRefused is
    /// emitted. A later ask() or askDocument() cancels the reading: neither happens then.
    function askDocument(file) {
        path = file;
        preview.readDocument(file);
    }

    /// Closes the dialog and emits `confirmed` or `documentConfirmed`.
    function start() {
        close();
        if (path === "")
            confirmed(preview.checkedIdentities());
        else
            documentConfirmed(path, preview.checkedIdentities());
    }

    wantedWidth: Theme.batchPreviewWidth
    objectName: "upgradePreview"
    okEnabled: preview.upgradeCount > 0
    okText: qsTr("开始升级")
    title: path === "" ? qsTr("设备升级") : qsTr("升级文档")
    onAccepted: {
        if (preview.warningCount > 0)
            warned.ask(preview.warningCount, preview.warnings());
        else
            start();
    }
    onOpened: table.forceActiveFocus()

    UpgradePreview {
        id: preview
        deviceFactory: root.deviceFactory
        onDocumentRead: refusal => {
            if (refusal === "")
                root.open();
            else
                root.documentRefused(refusal);
        }
    }

    footContent: BatchPreviewCounts {
        height: parent.height
        preview: preview
    }

    Column {
        width: parent.width
        spacing: Theme.controlGap

        OVNotice {
            width: parent.width
            iconColor: preview.skippedCount > 0 ? Theme.colours.warn : Theme.colours.accent
            iconName: preview.skippedCount > 0 ? "alert" : "about"
            text: qsTr("即将升级 %n 台设备。升级期间设备会重启，请勿断电。", "", preview.upgradeCount)
                + (root.path !== "" ? qsTr("结果将写入文档。") : "")
        }
        BatchPreviewTable {
            id: table
            width: parent.width
            height: Theme.batchPreviewHeight
            givesFirmware: true
            objectName: "upgradePreviewTable"
            preview: preview
        }
    }
    BatchWarningQuestion {
        id: warned
        onAccepted: root.start()
    }
}
