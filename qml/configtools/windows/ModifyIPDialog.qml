// Input of new addresses, for one device or for a batch. The dialog changes nothing: the owner reads the input on
// `confirmed` and closes the dialog. Warnings of one device are shown at the fields, and a second OK confirms them; a
// device that cannot be changed is then skipped by the owner. Warnings of a batch are confirmed by a question. For a
// batch, the preview opens when the addresses are known.
import QtQuick
import configtools

OVDialog {
    id: root

    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    /// The ticked devices get consecutive addresses, or the same one; otherwise one device gets the address.
    property bool batch: false
    property bool expanded: false  // the preview is shown
    readonly property alias plan: plan  // the AddressPlan with the devices, their ticks and new addresses
    readonly property int formWidth: Theme.modifyIpWidth - 2 * Theme.pageMargin  // also next to the preview
    readonly property alias dhcp: dhcpButton.checked  // the devices use DHCP; address, mask and gateway are ignored
    // The typed addresses without leading zeros in their octets.
    readonly property string mask: AddressTools.plainAddress(maskField.text)
    readonly property string gateway: AddressTools.plainAddress(gatewayField.text)
    //: Some languages have a different term for the address of one device and the first address of a batch.
    readonly property string startLabel: batch ? qsTr("起始IP") : qsTr("起始IP", "one device")
    property bool tried: false  // OK was pressed: incomplete fields show errors
    readonly property bool planned: dhcp || startField.acceptable  // the new addresses are known
    /// Problem of the new address of a single device; "" for none, for a batch and with DHCP.
    readonly property string addressWarning: {
        plan.warningCount + plan.skippedCount;  // dependency on the plan
        if (batch || dhcp)
            return "";  // the preview shows the notes of a batch
        const device = Object.assign({}, plan.get(0));
        switch (device.issue) {
        case AddressPlan.NotChanged:
            return device.note;
        case AddressPlan.TakenByOther:
            return qsTr("该地址已被 %1 使用").arg(plan.otherDeviceAt(0));
        case AddressPlan.IsGateway:
            return qsTr("这是网关的地址");
        case AddressPlan.NoDeviceAddress:
            return qsTr("这是网络地址或广播地址");
        default:
            return "";
        }
    }
    readonly property string gatewayWarning: plan.gatewayOutside && !dhcp ? qsTr("网关不在该网段内") : ""
    readonly property string warnings: addressWarning + gatewayWarning
    property string warned  // warnings that were already shown; they do not block a second confirmation
    signal confirmed  // the input is valid, and warnings were confirmed

    /// Sets the devices (values of rows of a DeviceTableModel), all of them ticked, and resets all input; the caller
    /// opens the dialog. `isBatch`: see `batch`.
    function load(devices, isBatch) {
        batch = isBatch;
        expanded = false;
        tried = false;
        warned = "";
        staticButton.checked = true;
        sameBox.checked = false;
        startField.text = startField.before = "";
        maskField.text = "255.255.255.0";
        gatewayField.text = "";
        plan.setDevices(devices);
    }

    /// Error text of the first invalid field, "" for none.
    function fault() {
        if (dhcp)
            return "";
        if (!startField.acceptable)
            return qsTr("请输入正确的起始IP");
        if (!AddressTools.isLegalMask(mask))
            return qsTr("请输入正确的子网掩码");
        return gatewayField.acceptable ? "" : qsTr("请输入正确的网关");
    }

    /// Confirms a batch. Shows the preview and asks first if there are warnings; refuses if no device is ticked.
    function startBatch() {
        const count = plan.warningCount + (gatewayWarning === "" ? 0 : 1);
        warned = warnings;
        if (plan.checkedCount === 0) {
            refuse(qsTr("请选择一台设备"));
        } else if (count > 0) {
            expanded = true;
            question.ask(count, [plan.warnings(), gatewayWarning].filter(text => text !== "").join("\n"));
        } else {
            confirmed();
        }
    }

    wantedWidth: expanded ? Theme.batchPreviewWidth
        : Math.max(Theme.modifyIpWidth, foot.visible ? foot.width + buttonsWidth + 3 * Theme.pageMargin : 0)
    leastHeight: Theme.modifyIpHeight
    dense: true
    objectName: "modifyIpDialog"
    okText: !batch && warned !== "" && warned === warnings ? qsTr("仍然修改") : qsTr("确定")
    title: qsTr("修改IP")
    onAccepted: {
        tried = true;
        const message = fault();
        if (message !== "")
            refuse(message);
        else if (batch)
            startBatch();
        else if (warned !== warnings && warnings !== "")
            warned = warnings;
        else
            confirmed();
    }
    onOpened: startField.forceActiveFocus()
    onPlannedChanged: if (planned && batch) expanded = true

    AddressPlan {
        id: plan
        onCheckedCountChanged: root.notice = ""
        deviceFactory: root.deviceFactory
        dhcp: root.dhcp
        gateway: gatewayField.text
        mask: maskField.text
        sameAddress: root.batch && sameBox.checked
        startAddress: startField.text
    }

    footContent: Row {
        id: foot
        height: parent.height
        spacing: Theme.controlGap
        visible: root.batch

        BatchPreviewCounts {
            height: parent.height
            preview: plan
        }
        OVLinkButton {
            anchors.verticalCenter: parent.verticalCenter
            objectName: "planButton"
            text: root.expanded ? qsTr("收起预览") : qsTr("预览")
            toolTip: qsTr("显示每台设备将得到的地址")
            onClicked: root.expanded = !root.expanded
        }
    }

    Column {
        width: parent.width
        spacing: Theme.unit

        Row {
            id: modes
            spacing: Theme.pageMargin

            OVLabel {
                width: Theme.formLabelWidth - modes.spacing + Theme.unit
                height: parent.height
                color: Theme.colours.sub
                text: qsTr("模式")
            }
            OVRadioButton {
                id: staticButton
                height: Theme.unit * 3
                checked: true
                objectName: "staticButton"
                text: qsTr("静态")
            }
            OVRadioButton {
                id: dhcpButton
                height: Theme.unit * 3
                objectName: "dhcpButton"
                text: "DHCP"
            }
        }
        OVFormRow {
            width: root.formWidth
            enabled: !root.dhcp
            label: root.startLabel

            Item {
                width: parent.width
                height: startField.height

                OVAddressField {
                    id: startField
                    property string before
                    width: parent.width - (sameBox.visible ? sameBox.width + Theme.controlGap : 0)
                    accessibleName: root.startLabel
                    errorText: wrong || (root.tried && !acceptable) ? qsTr("请输入正确的起始IP") : ""
                    objectName: "newStartField"
                    warningText: root.warned === "" ? "" : root.addressWarning
                    onEdited: {
                        gatewayField.text = AddressTools.gatewayAfterEdit(before, text, gatewayField.text);
                        before = text;
                    }
                }
                OVCheckBox {
                    id: sameBox
                    anchors.right: parent.right
                    objectName: "sameAddressBox"
                    text: qsTr("同一IP")
                    visible: root.batch
                }
            }
        }
        OVFormRow {
            width: root.formWidth
            enabled: !root.dhcp
            label: qsTr("子网掩码")

            OVAddressField {
                id: maskField
                width: parent.width
                accessibleName: qsTr("子网掩码")
                errorText: !AddressTools.mayBecomeMask(text) || (root.tried && !AddressTools.isLegalMask(text))
                    ? qsTr("请输入正确的子网掩码") : ""
                objectName: "newMaskField"
            }
        }
        OVFormRow {
            width: root.formWidth
            enabled: !root.dhcp
            label: qsTr("网关")

            OVAddressField {
                id: gatewayField
                width: parent.width
                accessibleName: qsTr("网关")
                errorText: wrong || (root.tried && !acceptable) ? qsTr("请输入正确的网关") : ""
                objectName: "newGatewayField"
                warningText: root.warned === "" ? "" : root.gatewayWarning
            }
        }
        BatchPreviewTable {
            width: parent.width
            height: Theme.batchPreviewHeight
            givesAddresses: true
            objectName: "planTable"
            preview: plan
            visible: root.expanded
        }
    }
    BatchWarningQuestion {
        id: question
        onAccepted: root.confirmed()
    }
}
