// The snapshots of one device or several, with progress and errors. Closing it does not stop snapshots in progress. The
// primary button, enabled after the end if there is a snapshot, requests the folder; the dialog then stays open.
import QtQuick
import QtQuick.Templates as T
import configtools

OVDialog {
    id: root

    required property Snapshots snapshots  // takes the snapshots and has the results
    signal againRequested(string ipport, int channel)  // ipport: "address:port", channel from 0
    signal folderRequested  // open the folder of the snapshots

    readonly property int columns: Math.max(1, Math.min(4, snapshots.results.length))
    readonly property int columnsOfWidth: Math.max(2, columns)  // at least 2: the foot needs this width
    readonly property int failures: snapshots.results.filter(entry => entry.state === Snapshots.Failed).length

    width: Math.min(Theme.snapshotWidth * columnsOfWidth + Theme.controlGap * (columnsOfWidth - 1)
                        + 2 * Theme.pageMargin, (parent?.width ?? 0) - 4 * Theme.pageMargin)
    cancelText: qsTr("关闭")
    objectName: "snapshotDialog"
    okEnabled: !snapshots.busy && snapshots.results.some(entry => entry.state === Snapshots.Taken)
    okText: qsTr("打开文件夹")
    title: qsTr("抓图")
    onAccepted: folderRequested()

    footContent: [OVLinkButton {
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        enabled: !root.snapshots.stopping
        objectName: "snapshotStopButton"
        text: enabled ? qsTr("停止") : qsTr("正在停止…")
        visible: root.snapshots.all
        onClicked: root.snapshots.stop()
    }, OVLabel {
        anchors.fill: parent
        color: root.failures > 0 && !root.snapshots.busy ? Theme.colours.bad : Theme.colours.sub
        objectName: "snapshotSummary"
        text: root.snapshots.busy
            ? qsTr("正在抓图 %1 / %2").arg(Math.min(root.snapshots.done + 1, root.snapshots.results.length))
                                      .arg(root.snapshots.results.length)
            : [qsTr("成功 %n", "", root.snapshots.results.length - root.failures),
               root.failures > 0 ? qsTr("失败 %n", "", root.failures) : ""]
                .filter(part => part !== "").join(qsTr("，"))
    }]

    GridView {
        id: view
        width: parent.width
        height: Math.min(Math.ceil(count / root.columns) * cellHeight, Theme.snapshotsHeight)
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        cellHeight: cellWidth * 9 / 16 + Theme.controlHeight + Theme.controlGap
        cellWidth: Math.floor(width / root.columns)
        clip: true
        model: root.snapshots.results.length
        objectName: "snapshotGrid"

        Accessible.role: Accessible.List
        Accessible.name: root.title

        T.ScrollBar.vertical: OVScrollBar {}

        // qmllint disable unqualified
        delegate: SnapshotCell {
            required property int index

            width: view.cellWidth - Theme.controlGap
            height: view.cellHeight - Theme.controlGap
            entry: root.snapshots.results[index] ?? null
            waits: root.snapshots.busy
            withDevice: root.snapshots.several
            onAgainRequested: root.againRequested(entry.ipport, entry.channel)
        }
        // qmllint enable unqualified
    }
}
