// A line with the progress and the result of the latest upgrade batch. It has no height before the first batch.
import QtQuick
import configtools

Item {
    id: root

    required property Batch batch  // the latest upgrade batch; null before the first one

    readonly property BatchReport report: batch?.report ?? none  // numbers of devices by result
    readonly property BatchReport none: BatchReport {}
    /// Number of finished devices: Batch.done while the batch runs, afterwards without those that are not done.
    readonly property int done: batch?.running ? batch.done : report.total - report.notDone
    /// Numbers of devices by result, as text.
    readonly property string outcome: {
        if (batch?.running)  // the remaining ones are still in progress
            return [report.succeeded > 0 ? qsTr("成功 %n", "", report.succeeded) : "",
                    report.failed > 0 ? qsTr("失败 %n", "", report.failed) : ""]
                .filter(part => part !== "").join(qsTr("，"));
        return report.summary;
    }

    implicitHeight: batch === null ? 0 : Theme.controlHeight + Theme.unit

    Row {
        height: Theme.controlHeight
        spacing: Theme.unit
        visible: root.batch !== null

        OVIcon {
            anchors.verticalCenter: parent.verticalCenter
            color: root.report.failed > 0 ? Theme.colours.warn : root.batch?.running ? Theme.colours.accent : Theme.colours.ok
            name: root.report.failed > 0 ? "alert" : root.batch?.running ? "upgrade" : "ok"
            size: Theme.smallIconSize
        }
        OVLabel {
            height: parent.height
            objectName: "upgradeSummary"
            //: Finished devices of an upgrade, and all of them.
            text: qsTr("升级：%1 / %2").arg(root.done).arg(root.batch?.total ?? 0)
                + (root.outcome !== "" ? "  ·  " + root.outcome : "")
        }
    }
}
