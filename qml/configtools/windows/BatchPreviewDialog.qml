// Asks before a batch changes devices, and lists what will happen to which of them.
import QtQuick
import configtools

OVDialog {
    id: root

    required property var deviceFactory
    property string message
    property bool danger: false
    property bool listed: false
    property bool openedOut: false
    property var action: null  // gets the devices that take part, and those that the user has taken out
    property bool byAddress: true  // it takes their addresses and ports, else their identities
    property string subject    // what withdraw() names it by

    /// `words` ask or say what will be done, `happens` names it in the row of each device. `choices` has "okText" and
    /// "action", and if wanted "title", "danger", "listed" (the list is open although nothing is noted in it), "quick" (one
    /// device without a note needs no question) and "subject", by which withdraw() knows it.
    function ask(words, happens, ipports, choices) {
        preview.action = happens;
        preview.setAddresses(ipports);
        byAddress = true;
        begin(words, choices);
    }

    /// The same for rows of a DeviceTableModel. The action gets their identities.
    function askRows(words, happens, rows, choices) {
        preview.action = happens;
        preview.setDevices(rows);
        byAddress = false;
        begin(words, choices);
    }

    /// The same for entries of BatchPreview.setEntries(). The action gets their names.
    function askEntries(words, entries, choices) {
        preview.action = "";
        preview.setEntries(entries);
        byAddress = false;
        begin(words, choices);
    }

    function begin(words, choices) {
        const noted = preview.warningCount + preview.skippedCount > 0;
        if (choices.quick && preview.count === 1 && !noted) {
            choices.action(chosen(), []);
            return;
        }
        message = words;
        danger = choices.danger ?? false;
        title = choices.title ?? qsTr("提示");
        okText = choices.okText;
        subject = choices.subject ?? "";
        action = choices.action;
        listed = choices.listed ?? false;
        openedOut = listed || noted;
        open();
    }

    /// Closes the question about this subject, whose time is over.
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

    wantedWidth: openedOut ? Theme.batchPreviewWidth : Theme.messageWidth
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
    onClosed: action = null  // it may hold a password
    onOpened: if (danger) focusCancel()  // Enter twice is not yet a yes

    BatchPreview {
        id: preview
        onCheckedCountChanged: root.notice = ""
        deviceFactory: root.deviceFactory
    }

    footContent: BatchPreviewCounts {
        height: parent.height
        preview: preview
        visible: root.openedOut
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
            text: root.openedOut ? qsTr("收起列表") : qsTr("查看 %n 台设备", "", preview.count)
            visible: !root.listed
            onClicked: root.openedOut = !root.openedOut
        }
        BatchPreviewTable {
            width: parent.width
            height: Theme.batchPreviewHeight
            objectName: "previewTable"
            preview: preview
            visible: root.openedOut
        }
    }
    BatchWarningQuestion {
        id: warned
        onAccepted: root.start()
    }
}
