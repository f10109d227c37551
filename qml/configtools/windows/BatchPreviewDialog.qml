// Confirms a batch, with a list of the change to each device.
import QtQuick
import configtools

OVDialog {
    id: root

    required property var deviceFactory
    property string message
    property bool danger: false
    property bool listed: false
    property bool expanded: false
    property var action: null  // called with the devices to process and the unticked ones
    property bool byAddress: true  // `action` gets addresses and ports, else identities
    property string subject    // identifies the question for withdraw()

    /// `text` is the question, `actionText` the change to each device. `choices` has "okText" and "action" and
    /// optionally "title", "danger", "listed" (shows the list even without notes), "quick" (a single device without a
    /// note needs no confirmation) and "subject" (for withdraw()).
    function ask(text, actionText, ipports, choices) {
        preview.action = actionText;
        preview.setAddresses(ipports);
        byAddress = true;
        begin(text, choices);
    }

    /// Like ask() for rows of a DeviceTableModel. The action gets their identities.
    function askRows(text, actionText, rows, choices) {
        preview.action = actionText;
        preview.setDevices(rows);
        byAddress = false;
        begin(text, choices);
    }

    /// Like ask() for entries of BatchPreview.setEntries(). The action gets their names.
    function askEntries(text, entries, choices) {
        preview.action = "";
        preview.setEntries(entries);
        byAddress = false;
        begin(text, choices);
    }

    function begin(text, choices) {
        const noted = preview.warningCount + preview.skippedCount > 0;
        if (choices.quick && preview.count === 1 && !noted) {
            choices.action(chosen(), []);
            return;
        }
        message = text;
        danger = choices.danger ?? false;
        title = choices.title ?? qsTr("提示");
        okText = choices.okText;
        subject = choices.subject ?? "";
        action = choices.action;
        listed = choices.listed ?? false;
        expanded = listed || noted;
        open();
    }

    /// Closes the question if it has this subject.
    function withdraw(about) {
        if (subject !== about)
            return;
        warned.close();
        close();
    }

    function start() {
        const wanted = action;
        if (wanted === null)
            return;
        const devices = chosen();
        const others = preview.uncheckedAddresses();
        close();
        wanted(devices, others);
    }

    function chosen() {
        return byAddress ? preview.checkedAddresses() : preview.checkedIdentities();
    }

    wantedWidth: expanded ? Theme.batchPreviewWidth : Theme.messageWidth
    okKind: danger ? OVButton.DangerPrimary : OVButton.Primary
    objectName: "batchPreviewDialog"
    onAccepted: {
        if (preview.checkedCount === 0)
            refuse(qsTr("请选择一台设备"));
        else if (preview.warningCount > 0)
            warned.ask(preview.warningCount, preview.warnings());
        else
            start();
    }
    onClosed: action = null  // it may contain a password
    onOpened: if (danger) focusCancel()  // pressing Enter twice must not confirm

    BatchPreview {
        id: preview
        onCheckedCountChanged: root.notice = ""
        deviceFactory: root.deviceFactory
    }

    footContent: BatchPreviewCounts {
        height: parent.height
        preview: preview
        visible: root.expanded
    }

    Column {
        width: parent.width
        spacing: Theme.controlGap

        OVNotice {
            width: parent.width
            iconColor: root.danger ? Theme.colours.bad : root.listed ? Theme.colours.accent : Theme.colours.warn
            iconName: root.listed ? "about" : "alert"
            text: root.message
        }
        OVLinkButton {
            x: Theme.iconSize + Theme.controlGap
            objectName: "previewButton"
            text: root.expanded ? qsTr("收起列表") : qsTr("查看 %n 台设备", "", preview.count)
            visible: !root.listed
            onClicked: root.expanded = !root.expanded
        }
        BatchPreviewTable {
            width: parent.width
            height: Theme.batchPreviewHeight
            objectName: "previewTable"
            preview: preview
            visible: root.expanded
        }
    }
    BatchWarningQuestion {
        id: warned
        onAccepted: root.start()
    }
}
