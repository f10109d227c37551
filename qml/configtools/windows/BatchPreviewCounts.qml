// Numbers of devices of a planned batch: all ticked ones, those to be processed, those with warnings, and skipped ones,
// which get no request. The owner sets `height`.
import QtQuick
import configtools

Row {
    id: root

    required property BatchPreview preview  // the devices of the batch

    spacing: Theme.controlGap

    OVLabel {
        height: parent.height
        color: Theme.colours.sub
        objectName: "batchCount"
        text: qsTr("%n台设备已选中", "", root.preview.checkedCount)
            + (root.preview.skippedCount > 0
                ? "  ·  " + qsTr("对 %n 台设备执行", "", root.preview.checkedCount - root.preview.skippedCount) : "")
    }
    Row {
        height: parent.height
        spacing: Theme.signGap
        visible: root.preview.warningCount > 0

        OVIcon {
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.colours.warn
            name: "alert"
            size: Theme.smallIconSize
        }
        OVLabel {
            height: parent.height
            color: Theme.colours.warnText
            objectName: "planWarning"
            text: root.preview.warningCount

            HoverHandler {
                id: warningPointer
            }
            OVToolTip {
                shown: warningPointer.hovered
                text: qsTr("%n 个警告，请查看提示", "", root.preview.warningCount)
            }
        }
    }
    OVLabel {
        height: parent.height
        color: Theme.colours.sub
        objectName: "planSkipped"
        text: qsTr("跳过 %n 台", "", root.preview.skippedCount)
        visible: root.preview.skippedCount > 0

        HoverHandler {
            id: skippedPointer
        }
        OVToolTip {
            shown: skippedPointer.hovered
            text: qsTr("%n 台设备不会执行，请查看提示", "", root.preview.skippedCount)
        }
    }
}
