// Leaves only the devices that batches have failed with, and takes their marks away. Without marks there is nothing.
import QtQuick
import configtools

Row {
    id: root

    required property FailedMarks marks
    required property int count  // rows of marked devices
    property bool on: false
    signal toggled(bool on)

    spacing: Theme.unit
    visible: (marks?.count ?? 0) > 0

    OVCheckBox {
        checked: root.on
        objectName: "failedFilter"
        //: Shows only the devices that batches failed with or did not come to; %1 is how many there are.
        text: qsTr("仅未成功 %1").arg(root.count)
        toolTip: qsTr("只显示失败和未执行的设备，按原因排列。已不在列表中的设备见批处理记录。")
        onToggled: root.toggled(checked)
    }
    OVLinkButton {
        anchors.verticalCenter: parent.verticalCenter
        objectName: "clearMarksButton"
        text: qsTr("清除标记")
        toolTip: qsTr("不再标记失败和未执行的设备")
        onClicked: root.marks.clear()
    }
}
