// Lists the device certificates that were refused, and stores those that the user ticks as trusted. A certificate that
// differs from the trusted one is ticked only alone, not with all or a range. Refused requests are not repeated.
import QtQuick
import configtools

OVDialog {
    id: root

    required property CertificateList certificates  // the refused certificates, with their ticks
    readonly property bool warns: certificates.changedCount > 0  // a certificate differs from the one trusted before
    /// Values of the selected row, such as "device", "fingerprint" (SHA-256) and "stored" (the fingerprint trusted
    /// before, "" for none); empty for none.
    readonly property var current: shownRow(table.currentIndex, certificates.count)
    signal agreed(int count)  // `count` certificates are trusted now; the dialog has closed

    /// The values of a row. `count` is unused: with it, a binding is evaluated again when the rows change.
    function shownRow(index, count) {
        return certificates.get(index);
    }

    /// Reads the refused certificates and opens the dialog.
    function show() {
        certificates.load();
        table.show(0);
        open();
    }

    wantedWidth: Theme.batchPreviewWidth
    cancelText: qsTr("暂不信任")
    objectName: "certificateDialog"
    okEnabled: certificates.checkedCount > 0
    okKind: warns ? OVButton.DangerPrimary : OVButton.Primary
    okText: qsTr("信任所选证书")
    title: qsTr("确认设备证书")
    onAccepted: {
        const count = certificates.checkedCount;
        const failure = certificates.agree();
        if (failure !== "") {
            refuse(qsTr("证书无法保存，未信任任何证书。\n%1").arg(failure));
            return;
        }
        close();
        agreed(count);
    }
    onOpened: if (warns) focusCancel()  // pressing Enter must not confirm

    footContent: OVLabel {
        height: parent.height
        color: Theme.colours.sub
        objectName: "certificateCount"
        text: qsTr("已选 %1 / %2 台设备").arg(root.certificates.checkedCount).arg(root.certificates.count)
    }

    Column {
        width: parent.width
        spacing: Theme.controlGap

        OVNotice {
            width: parent.width
            iconName: "about"
            text: qsTr("以下设备通过 HTTPS 出示了自己创建的证书，尚未发送密码。请核对指纹，确认后只信任该密钥。")
            visible: !root.warns
        }
        OVNotice {
            width: parent.width
            iconColor: Theme.colours.bad
            iconName: "alert"
            objectName: "changedNotice"
            text: qsTr("%n 台设备的证书与已确认的不同，已停止发送密码。可能有人冒充设备：仅在知道原因（如设备已恢复出厂设置）时才勾选。", "",
                       root.certificates.changedCount)
            visible: root.warns
        }
        OVNotice {
            width: parent.width
            iconColor: Theme.colours.warn
            iconName: "alert"
            objectName: "certificateProblem"
            text: root.certificates.problem
            visible: text !== ""
        }
        OVTable {
            id: table
            width: parent.width
            height: Theme.batchPreviewHeight
            checkState: root.certificates.checkState
            columns: [
                {key: "kind", title: qsTr("状态"), width: Theme.columnVersion, cell: kindCell},
                {key: "device", title: qsTr("IP:端口"), width: Theme.columnAddress, cell: figureCell, stretch: 1},
                {key: "mac", title: qsTr("MAC 或 UUID"), width: Theme.columnMac, cell: figureCell},
                {key: "subject", title: qsTr("证书名称"), width: Theme.columnModel, stretch: 1},
                {key: "validity", title: qsTr("有效期"), width: Theme.columnPlanAction, cell: figureCell},
                {key: "fingerprint", title: qsTr("指纹"), width: Theme.columnModel, cell: figureCell, stretch: 1}
            ]
            focus: true
            model: root.certificates
            objectName: "certificateTable"
            onAllToggled: checked => root.certificates.setAllChecked(checked)
            onRangeToggled: (first, last, checked) => root.certificates.setRangeChecked(first, last, checked)
        }
        OVFormRow {
            width: parent.width
            label: qsTr("指纹（SHA-256）")
            labelWidth: Theme.wideLabelWidth
            OVLabel {
                height: Theme.controlHeight
                font: Theme.figureFont
                objectName: "shownFingerprint"
                text: root.current.fingerprint ?? ""
            }
        }
        OVFormRow {
            width: parent.width
            label: qsTr("已确认的指纹")
            labelWidth: Theme.wideLabelWidth
            visible: root.warns
            OVLabel {
                height: Theme.controlHeight
                color: Theme.colours.sub
                font: Theme.figureFont
                objectName: "storedFingerprint"
                text: root.current.stored ?? ""
            }
        }
    }

    Component {
        id: figureCell
        OVTableTextCell {
            font: Theme.figureFont
        }
    }
    Component {
        id: kindCell
        OVTableCell {
            id: kind
            readonly property bool changed: row?.changed ?? false

            OVIcon {
                id: sign
                anchors.verticalCenter: parent.verticalCenter
                color: Theme.colours.bad
                name: "alert"
                size: Theme.smallIconSize
                visible: kind.changed
            }
            OVLabel {
                x: kind.changed ? sign.width + Theme.signGap : 0
                width: parent.width - x - Theme.unit
                height: parent.height
                color: kind.changed ? Theme.colours.bad : Theme.colours.text
                text: kind.changed ? qsTr("证书已改变") : qsTr("新证书")
            }
        }
    }
}
