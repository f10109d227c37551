// Confirms a batch, with a list of the change to each device. It starts nothing: after the confirmation it calls the
// action of the caller. The action is not called if the user cancels.
import QtQuick
import configtools

OVDialog {
    id: root

    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    property string message  // the question
    property bool danger: false  // a dangerous change: the primary button is red, and "cancel" has the focus
    property bool listed: false  // the list cannot be hidden
    property bool expanded: false  // the list is shown
    /// Function of the caller, called with two lists: the ticked devices, also those that the batch will skip, see
    /// `byAddress`, and the unticked ones, always as "address:port". Null while the dialog is closed.
    property var action: null
    property bool byAddress: true  // the ticked devices are passed as "address:port", otherwise by identity
    property string subject  // identifies the question for withdraw(); "" for none

    /// Asks whether to process the devices at `ipports` ("address:port"). `text` is the question, `actionText` the
    /// change to each device as shown in the list. `choices` has "okText" and "action" and optionally "title",
    /// "danger", "listed" (the list is always shown), "quick" (no confirmation for a single device without a warning
    /// that is not skipped: the action is called during this call) and "subject" (for withdraw()). The list is also
    /// shown if a device has a warning or is skipped.
    function ask(text, actionText, ipports, choices) {
        preview.action = actionText;
        preview.setAddresses(ipports);
        byAddress = true;
        begin(text, choices);
    }

    /// Like ask() for rows (values) of a DeviceTableModel. The action gets the identities of the ticked ones.
    function askRows(text, actionText, rows, choices) {
        preview.action = actionText;
        preview.setDevices(rows);
        byAddress = false;
        begin(text, choices);
    }

    /// Like ask() for devices with separate changes. `entries`: maps of "name" (unique), "ipport" and "action" (the
    /// change) and optionally "title", "mac", "hindrance" (why the device is skipped) and "newAddress" (for warnings).
    /// The action gets the "name" of the ticked ones.
    function askEntries(text, entries, choices) {
        preview.action = "";
        preview.setEntries(entries);
        byAddress = false;
        begin(text, choices);
    }

    /// Opens the dialog, or calls the action if no confirmation is needed.
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

    /// Closes the dialog without calling the action if its question has this subject.
    function withdraw(about) {
        if (subject !== about)
            return;
        warned.close();
        close();
    }

    /// Closes the dialog and calls the action.
    function start() {
        const wanted = action;
        if (wanted === null)
            return;
        const devices = chosen();
        const others = preview.uncheckedAddresses();
        close();
        wanted(devices, others);
    }

    /// The ticked devices as the action gets them.
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
