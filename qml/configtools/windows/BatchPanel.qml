// The panel of batches: a list of the batches since the start of the application (the last 50), and the results of the
// selected one. The latest batch can be retried, and an address change can be reverted.
import QtQuick
import configtools

OVDialog {
    id: root

    required property Batches batches  // starts batches for all pages; one batch runs at a time
    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    readonly property Batch batch: results.batch  // the selected one; null for none
    readonly property bool idle: batch !== null && !batches.running  // a batch is selected, and no batch runs
    signal saveRequested(Batch batch)  // save the results of this batch to a file
    signal saveAllRequested  // save the results of all listed batches to one file

    /// Opens the panel with the latest batch selected.
    function show() {
        list.show(0);
        open();
    }

    /// Selects the latest batch if `begun`, the result of starting one, is not null.
    function showNewest(begun) {
        if (begun !== null)
            list.show(0);
    }

    /// Asks, then starts a batch that restores the addresses that the devices had before the batch `changed`.
    function askToPutBack(changed) {
        const entries = batches.addressesToPutBack(changed);
        preview.instance().askEntries(
            qsTr("确定要将 %n 台设备恢复为修改前的IP地址吗？", "", entries.length), entries, {
                title: qsTr("恢复IP地址"), okText: qsTr("恢复地址"), listed: true,
                action: identities => showNewest(batches.putAddressesBack(changed, qsTr("恢复IP地址"), identities))
            });
    }

    wantedWidth: Theme.batchPanelWidth
    height: Math.min(Theme.batchPanelHeight, mostHeight)
    scrolls: false
    hasCancel: false
    objectName: "batchPanel"
    okText: qsTr("关闭")
    title: qsTr("批处理记录")
    onAccepted: close()
    onOpened: list.forceActiveFocus()

    Connections {
        enabled: root.visible
        target: root.batches

        function onRefused(message) {
            root.inform(message, OVToast.Error);
        }
    }
    BatchHistory {
        id: history
        batches: root.batches
    }
    BatchResultModel {
        id: results
        batch: history.batchAt(list.currentIndex)
        onlyFailed: onlyFailedBox.checked
    }

    footContent: OVActionRow {
        anchors.verticalCenter: parent.verticalCenter

        OVButton {
            readonly property string refusal: root.batch === null ? qsTr("还没有批处理")
                : root.batches.running && !root.batch.running ? qsTr("请等待当前批处理结束")
                : root.batch.retryRefusal

            enabled: refusal === ""
            objectName: "panelRetryButton"
            text: qsTr("重试失败")
            toolTip: enabled ? qsTr("对失败和未执行的设备再试一次") : refusal
            onClicked: root.showNewest(root.batches.retry(root.batch))
        }
        OVButton {
            enabled: root.idle && root.batches.addressesToPutBack(root.batch).length > 0
            objectName: "putBackButton"
            text: qsTr("恢复地址")
            toolTip: qsTr("将修改成功的设备恢复为修改前的IP地址")
            visible: root.batch?.changesAddresses ?? false
            onClicked: root.askToPutBack(root.batch)
        }
        OVButton {
            enabled: root.batch !== null && !root.batch.running
            objectName: "panelSaveButton"
            text: qsTr("保存结果")
            onClicked: root.saveRequested(root.batch)
        }
        OVButton {
            enabled: root.batch !== null && !root.batches.running
            objectName: "panelSaveAllButton"
            text: qsTr("保存全部")
            toolTip: qsTr("将列表中所有批处理的结果保存到一个文件")
            onClicked: root.saveAllRequested()
        }
    }

    OVTable {
        id: list
        width: Math.min(Theme.batchListWidth, Math.round(parent.width * Theme.batchListShare))
        height: parent.height
        checkable: false
        columns: [
            {key: "title", title: qsTr("批处理"), width: Theme.columnType, stretch: 1},
            {key: "time", title: qsTr("开始时间"), width: Theme.columnTime, cell: figureCell},
            {key: "counts", title: qsTr("成功 / 全部"), width: Theme.columnPlanAddress, leastWidth: Theme.columnLeast, cell: countCell}
        ]
        focus: true
        model: history
        objectName: "batchList"
    }
    OVLabel {
        id: summary
        anchors.left: table.left
        anchors.right: onlyFailedBox.left
        anchors.rightMargin: Theme.pageMargin
        height: onlyFailedBox.height
        color: Theme.colours.sub
        objectName: "batchSummary"
        text: root.batch?.summary ?? ""
    }
    OVCheckBox {
        id: onlyFailedBox
        anchors.right: parent.right
        objectName: "onlyFailedBox"
        text: qsTr("只看失败")
        toolTip: qsTr("包括未执行的设备")
    }
    OVTable {
        id: table
        x: list.width + Theme.pageMargin
        y: onlyFailedBox.height + Theme.unit
        width: parent.width - x
        height: parent.height - y
        checkable: false
        columns: [
            {key: "device", title: qsTr("设备"), width: Theme.columnAddress, cell: figureCell},
            {key: "name", title: qsTr("名称"), width: Theme.columnModel, stretch: 1},
            {
                key: "result", title: qsTr("结果"), width: Theme.columnOutcome, leastWidth: Theme.columnOutcome,
                stretch: 2, cell: resultCell
            },
            {key: "time", title: qsTr("时间"), width: Theme.columnTime, cell: figureCell},
            {key: "mac", title: "MAC", width: Theme.columnMac, cell: figureCell}
        ]
        model: results
        objectName: "batchResults"

        OVEmptyState {
            anchors.fill: parent
            iconName: root.batch === null ? "history" : "ok"
            title: root.batch === null ? qsTr("还没有批处理") : qsTr("没有失败的设备")
        }
    }
    Component {
        id: figureCell
        OVTableTextCell {
            font: Theme.figureFont
        }
    }
    Component {
        id: countCell
        BatchResultCell {
            outcome: row?.running ? BatchResultModel.ToCome : row?.complete ? BatchResultModel.Succeeded
                                                                          : BatchResultModel.Failed
        }
    }
    Component {
        id: resultCell
        BatchResultCell {
            outcome: row?.state ?? BatchResultModel.ToCome
        }
    }
    // qmllint disable unqualified
    OVOnDemand {
        id: preview
        visible: false
        sourceComponent: BatchPreviewDialog {
            deviceFactory: root.deviceFactory
        }
    }
    // qmllint enable unqualified
}
