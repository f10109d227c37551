// The filter of a device tree: all devices, those with a failed mark (a batch failed or did not reach them), or those
// without a login so far or whose last login failed.
import QtQuick
import configtools

OVSegmentedChoice {
    id: root

    required property OVTreeModel devices  // its property `shown` is changed
    /// Number of failed devices that this tree cannot list.
    readonly property int elsewhereCount: devices.failedElsewhereCount
    /// The OVTreeModel.Shown of each option.
    readonly property var shownOf: [OVTreeModel.All, OVTreeModel.Failed, OVTreeModel.LoggedOut]

    currentIndex: shownOf.indexOf(devices.shown)
    options: [all, failed, loggedOut]
    onActivated: index => {
        if (options[index].enabled)
            devices.shown = shownOf[index];
    }

    // Objects rather than maps: a changed count must not create the choice again, which may have the keyboard focus.
    QtObject {
        id: all
        readonly property bool enabled: true
        objectName: "allStates"
        readonly property string text: qsTr("全部")
        readonly property string toolTip: ""
    }
    QtObject {
        id: failed
        readonly property bool enabled: root.devices.failedCount > 0
        objectName: "failedStates"
        //: Shows only the devices whose batches failed or did not reach them; %1 is their number.
        readonly property string text: qsTr("未成功 %1").arg(root.devices.failedCount)
        readonly property string toolTip: qsTr("只显示失败和未执行的设备，按原因排列。")
            + (root.elsewhereCount > 0 ? qsTr("另有 %n 台不在此列表中，见批处理记录。", "", root.elsewhereCount) : "")
    }
    QtObject {
        id: loggedOut
        readonly property bool enabled: true
        objectName: "loggedOutStates"
        //: Shows only the devices without a login; %1 is their number.
        readonly property string text: qsTr("未登录 %1").arg(root.devices.loggedOutCount)
        readonly property string toolTip: qsTr("只显示还没有登录过或最近一次登录失败的设备")
    }
}
