// Edits the group of devices. An empty name removes them from their groups.
import QtQuick
import configtools

OVDialog {
    id: root

    required property KnownDevices knownDevices
    property var rows: []  // complete rows of the device list, see KnownDevices.setGroup(); not empty while open
    property bool ipv6: false  // the rows are those of IPv6 devices
    readonly property int mostChoices: 12  // shown names of existing groups

    /// Opens the dialog for these devices.
    function edit(rows, ipv6) {
        root.rows = rows;
        root.ipv6 = ipv6;
        field.text = rows.every(row => row.group === rows[0].group) ? rows[0].group ?? "" : "";
        open();
    }

    wantedWidth: Theme.noteWidth
    objectName: "groupDialog"
    okText: qsTr("保存")
    title: qsTr("分组")
    onAccepted: {
        const failure = knownDevices.setGroup(rows, field.text, ipv6);
        if (failure === "")
            close();
        else
            refuse(failure);
    }
    onOpened: {
        field.forceActiveFocus();
        field.selectAll();
    }

    Column {
        width: parent.width
        spacing: Theme.controlGap

        OVField {
            width: parent.width
            label: root.rows.length === 1
                ? [root.rows[0].name, root.rows[0].ipport].filter(text => (text ?? "") !== "").join("  ")
                : qsTr("%n 台设备", "", root.rows.length)

            OVTextField {
                id: field
                width: parent.width
                accessibleName: qsTr("分组")
                focus: true
                maximumLength: root.knownDevices.longestGroup
                objectName: "groupField"
                placeholderText: qsTr("不属于任何分组")
            }
        }
        Flow {
            width: parent.width
            spacing: Theme.controlGap
            visible: choices.count > 0

            // qmllint disable unqualified
            Repeater {
                id: choices
                model: Array.from(root.knownDevices.groups).slice(0, root.mostChoices)

                OVLinkButton {
                    required property int index
                    required property string modelData

                    objectName: "groupChoice" + index
                    text: modelData
                    onClicked: field.text = modelData
                }
            }
            // qmllint enable unqualified
        }
    }
}
