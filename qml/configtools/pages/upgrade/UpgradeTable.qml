// The table of the upgrade page: file, progress and result of each device. It only requests; the page acts. F2 requests
// the note of the current row.
import QtQuick
import configtools

OVTable {
    id: root

    required property bool ipv6  // the rows are IPv6 devices: wider addresses
    signal fileRequested(int row)  // choose the firmware file
    signal startRequested(int row)  // start the upgrade of the device
    signal stopRequested(int row)  // stop it
    signal noteRequested(int row)  // edit the note

    /// Names of the states of a running upgrade, by UpgradeTools.Result.
    readonly property var phases: ({
        [UpgradeTools.Waiting]: qsTr("等待"), [UpgradeTools.Preparing]: qsTr("登录"),
        [UpgradeTools.Sending]: qsTr("发送"), [UpgradeTools.Writing]: qsTr("写入"),
        [UpgradeTools.Restarting]: qsTr("重启")
    })

    // The buttons of a row while no upgrade runs, and the width in pixels of the column that shows them.
    readonly property string fileText: qsTr("选择文件")
    readonly property string startText: qsTr("升级")
    readonly property int neededForActions: Math.ceil(Theme.bodyMetrics.advanceWidth(fileText))
        + Math.ceil(Theme.bodyMetrics.advanceWidth(startText)) + Theme.controlGap + Theme.unit

    arrangeable: true
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_F2 && currentIndex >= 0;
        if (event.accepted)
            noteRequested(currentIndex);
    }

    // The keys are those of the rows of the device list. "vision": current firmware version. "filepath": firmware file.
    // "upgrade": progress in percent. "upgraderes": an UpgradeTools.Result; "upgradetext" (no column): its text, which
    // is shown instead of the general text of the result.
    columns: [
        {key: "num", title: qsTr("No."), width: Theme.columnUpgradeNumber, cell: numberCell},
        {key: "name", title: qsTr("名称"), width: Theme.columnUpgradeName, stretch: 1, sortable: true, cell: nameCell},
        {key: "model", title: qsTr("型号"), width: Theme.columnUpgradeModel, stretch: 1, sortable: true},
        {
            key: "ipport", title: qsTr("IP:端口"), width: Theme.columnUpgradeAddress,
            leastWidth: Theme.columnUpgradeAddressLeast, stretch: root.ipv6 ? 2 : 0, sortable: true, cell: addressCell
        },
        {
            key: "vision", title: qsTr("版本号"), width: Theme.columnUpgradeVersion,
            leastWidth: Theme.columnUpgradeVersionLeast, sortable: true, cell: figureCell
        },
        {key: "note", title: qsTr("备注"), width: Theme.columnNote, stretch: 1, sortable: true, hidden: true},
        {key: "filepath", title: qsTr("升级文件"), width: Theme.columnFile, stretch: 2, sortable: true, cell: fileCell},
        {
            key: "upgrade", title: qsTr("进度"), width: Theme.columnProgress, leastWidth: Theme.columnProgressLeast,
            cell: progressCell
        },
        {
            key: "upgraderes", title: qsTr("结果"), width: Theme.columnUpgradeResult,
            leastWidth: Theme.columnUpgradeResultLeast, stretch: 2, sortable: true, cell: resultCell
        },
        {
            key: "operate", title: qsTr("操作"), width: Math.max(Theme.columnUpgradeActions, neededForActions),
            fixed: true, cell: actionCell
        }
    ]

    Component {
        id: numberCell
        OVTableTextCell {
            font: Theme.figureFont
            text: rowIndex + 1
        }
    }
    Component {
        id: nameCell
        OVTableCell {
            id: name

            OVFailedSign {  // of any batch, not only upgrades
                id: failedSign
                anchors.verticalCenter: parent.verticalCenter
                failure: name.row?.failure ?? ""
                onlyNotDone: name.row?.onlyNotDone ?? false
                size: Theme.smallIconSize
            }
            OVLabel {
                x: failedSign.visible ? failedSign.width + Theme.signGap : 0
                width: parent.width - x - Theme.unit
                height: parent.height
                text: name.value ?? ""
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
        id: addressCell
        DeviceAddressCell {}
    }
    Component {
        id: fileCell
        OVTableCell {
            id: file

            OVLabel {
                readonly property string path: file.value ?? ""
                width: parent.width - Theme.unit
                height: parent.height
                color: path === "" ? Theme.colours.faint : Theme.colours.text
                showsFullTextOnHover: false
                text: path === "" ? qsTr("未选择") : path.slice(path.lastIndexOf("/") + 1)

                HoverHandler {
                    id: filePointer
                }
                OVToolTip {
                    shown: filePointer.hovered && parent.path !== ""
                    text: parent.path
                }
            }
        }
    }
    // qmllint disable unqualified
    Component {
        id: progressCell
        OVTableCell {
            id: progress

            readonly property int result: row?.upgraderes ?? UpgradeTools.None
            readonly property bool running: UpgradeTools.isRunning(result)
            readonly property bool counted: !running || result === UpgradeTools.Sending || result === UpgradeTools.Writing
            // An upgrade that failed before it started, such as by a refused file, has no progress.
            readonly property bool shown: running || result === UpgradeTools.Success || value > 0

            OVProgressBar {
                id: bar
                anchors.verticalCenter: parent.verticalCenter
                width: Theme.progressWidth
                barColor: progress.running ? Theme.colours.accent
                    : progress.result === UpgradeTools.Success ? Theme.colours.ok : Theme.colours.faint
                value: (progress.value ?? 0) / 100
                visible: progress.shown
            }
            OVLabel {
                anchors.left: bar.right
                anchors.leftMargin: Theme.unit
                anchors.right: parent.right
                height: parent.height
                color: Theme.colours.sub
                font: Theme.figureFont
                objectName: "upgradePhase" + progress.rowIndex
                text: progress.counted ? ((root.phases[progress.result] ?? "") + " " + (progress.value ?? 0) + "%").trim()
                    : root.phases[progress.result]
                visible: progress.shown
            }
        }
    }
    Component {
        id: resultCell
        OVTableCell {
            id: result

            readonly property int code: value ?? UpgradeTools.None
            readonly property bool failed: UpgradeTools.isFailure(code)
            readonly property bool canRetry: UpgradeTools.canTryAgain(code)
            readonly property bool notDone: code === UpgradeTools.Stopped || code === UpgradeTools.Cut
            readonly property bool skipped: code === UpgradeTools.NotInitialised
            readonly property bool signed: failed || code === UpgradeTools.Success
            readonly property string meaning: UpgradeTools.text(code)
            readonly property string statusText: row?.upgradetext ?? ""
            // While it runs, the phase is next to the bar; only further text is shown here.
            readonly property string shownText: UpgradeTools.isRunning(code) ? (statusText === meaning ? "" : statusText)
                : statusText !== "" ? statusText : meaning

            OVIcon {
                id: sign
                anchors.verticalCenter: parent.verticalCenter
                color: !result.failed ? Theme.colours.ok : result.notDone ? Theme.colours.warn
                    : result.skipped ? Theme.colours.sub : Theme.colours.bad
                name: !result.failed ? "ok" : result.notDone ? "alert" : result.skipped ? "mixed" : "error"
                size: Theme.smallIconSize
                visible: result.signed

                HoverHandler {
                    id: signPointer
                }
                OVToolTip {
                    shown: signPointer.hovered && result.failed
                    text: result.canRetry ? qsTr("可以重试") : qsTr("请先更正文件、账号或设备，再重新升级")
                }
            }
            OVLabel {
                x: sign.visible ? sign.width + Theme.signGap : 0
                width: parent.width - x - Theme.unit
                height: parent.height
                color: !result.failed || result.skipped ? Theme.colours.text
                    : result.notDone ? Theme.colours.warnText : Theme.colours.bad
                objectName: "upgradeResult" + result.rowIndex
                text: result.shownText
            }
        }
    }
    Component {
        id: actionCell
        OVTableCell {
            id: action

            readonly property int result: row?.upgraderes ?? UpgradeTools.None
            readonly property bool running: UpgradeTools.isRunning(result)

            Row {
                readonly property bool keyGroup: true  // one stop of the Tab key, see keygroups.js

                anchors.verticalCenter: parent.verticalCenter
                spacing: Theme.controlGap

                OVLinkButton {
                    focusPolicy: action.current || activeFocus ? Qt.StrongFocus : Qt.NoFocus
                    objectName: "upgradeFile" + action.rowIndex
                    text: root.fileText
                    visible: !action.running
                    onClicked: root.fileRequested(action.rowIndex)
                }
                OVLinkButton {
                    focusPolicy: action.current || activeFocus ? Qt.StrongFocus : Qt.NoFocus
                    objectName: "upgradeStart" + action.rowIndex
                    text: root.startText
                    visible: !action.running
                    onClicked: root.startRequested(action.rowIndex)
                }
                OVLinkButton {
                    enabled: UpgradeTools.canStop(action.result)
                    focusPolicy: action.current || activeFocus ? Qt.StrongFocus : Qt.NoFocus
                    objectName: "upgradeStop" + action.rowIndex
                    text: qsTr("停止")
                    toolTip: enabled ? "" : qsTr("已开始写入，无法停止")
                    visible: action.running
                    onClicked: root.stopRequested(action.rowIndex)
                }
            }
        }
    }
    // qmllint enable unqualified
}
