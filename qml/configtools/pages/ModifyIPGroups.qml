// Groups of the devices of the main page: entries of the menu of a row, and the dialog.
import QtQuick
import configtools

Item {
    id: root

    required property var deviceTable  // a DeviceTableModel
    required property KnownDevices knownDevices  // null: there are no entries

    /// The entries of the menu of a row: its group, and for a device that was not found its removal from the site.
    /// `values`: of the row, see DeviceActions.
    function entriesFor(values) {
        if (!knownDevices)
            return [];
        const entries = [{
            key: "group", text: qsTr("分组…"), enabled: (values.loginType ?? "") !== "P2P"
        }];
        return values.absent ? entries.concat([{key: "forget", text: qsTr("从现场中移除")}]) : entries;
    }

    /// Runs the entry with this key for a row; returns false for the key of another entry. The group is edited for the
    /// ticked devices if the row is one of them, otherwise for its device.
    function take(key, values) {
        if (key === "group")
            dialog.instance().edit(values.checked ? deviceTable.checkedRows() : [values], deviceTable.ipv6);
        else if (key === "forget")
            knownDevices.forget(values, deviceTable.ipv6);
        return key === "group" || key === "forget";
    }

    visible: false

    // qmllint disable unqualified
    OVOnDemand {
        id: dialog
        visible: false
        sourceComponent: GroupDialog {
            knownDevices: root.knownDevices
        }
    }
    // qmllint enable unqualified
}
