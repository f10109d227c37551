// The status line of a page. Left: the selection, the result of the last batch, warnings. Right: the running batch of
// any page, otherwise the other work of this page, otherwise the search. A batch and a search have a stop button. When
// a batch is paused after refused passwords, the line asks whether to continue, to stop, or to retry with another
// account. After a batch it offers to retry, to tick the failed devices, to save the results and to show the records of
// all batches.
import QtQuick
import configtools

Item {
    id: root

    required property string text  // the selection, such as the number of ticked devices
    property string warning  // "" for none
    property string runningText  // text about the other work of the page, while `running`
    property string runningDevice  // device or item that this work processes, "" for none
    property bool running: false  // work of the page that is not a batch runs
    property bool compact: false  // in the foot of a dialog: optional parts are hidden
    readonly property bool keyGroup: true  // one stop of the Tab key, see keygroups.js
    property real progress: -1  // of the work of `running`, 0 to 1; negative: unknown
    property Batches batches: null  // starts batches for all pages; null: no batch is shown
    property DeviceSearch search: null  // null: no search is shown
    signal tickRequested(var identities)  // the page ticks only these devices; array of names (identities) of rows
    signal notify(string message, int severity)  // the page shows a toast; severity: of OVToast

    readonly property Batch batch: batches?.current ?? null  // the latest one, also after its end
    readonly property bool showsBatch: batch?.running ?? false
    readonly property bool showsSearch: !running && !showsBatch && (search?.running ?? false)
    readonly property bool paused: showsBatch && batch.paused
    /// The paused batch after the choice of another account: it is stopping and is retried at its end. Null for none.
    property Batch batchToRetry: null
    /// Message of the choice of an account, a map of "message" and "severity". It is shown after the start of the
    /// retry, which removes all toasts. Null for none.
    property var accountNotice: null
    readonly property bool ended: batch !== null && !batch.running
    /// The batch has ended, and devices of it, or of the batches that it retries, failed or were not reached.
    readonly property bool incomplete: ended && batch.report.failed + batch.report.notDone + batch.failedBefore > 0
    /// Result of the ended batch, as text; "" while it runs.
    readonly property string outcome: ended && batch.report.summary !== ""
        ? batch.title + qsTr("：") + batch.report.summary + before : ""
    //: After the number of failed devices of a batch that retries another one.
    readonly property string before: ended && batch.failedBefore > 0 ? qsTr("，另有 %n 台此前未成功", "", batch.failedBefore) : ""
    /// Question of a paused batch; "" for none.
    readonly property string question: {
        if (!paused)
            return "";
        const accounts = batch.refusedAccounts;
        const refusals = accounts === "" ? qsTr("连续 %n 台设备密码错误", "", batch.refusalsInARow)
            : qsTr("连续 %n 台设备密码错误（账号 %1）", "", batch.refusalsInARow).arg(accounts);
        return qsTr("%1：%2，继续可能锁定账户。是否继续？").arg(batch.title).arg(refusals);
    }

    //: A running batch: title, finished devices, all devices.
    readonly property string runningBatch: showsBatch ? qsTr("%1 %2 / %3").arg(batch.title).arg(batch.done).arg(batch.total) : ""

    /// Remaining time of a batch as text; "" for a negative number, which means unknown.
    function timeLeft(seconds) {
        if (seconds < 0)
            return "";
        //: Remaining time of a batch.
        return seconds < 60 ? qsTr("剩余不到 1 分钟") : qsTr("剩余约 %n 分钟", "", Math.round(seconds / 60));
    }

    /// Gives the keyboard focus to the question of a paused batch if no control has it, as after a click on a button
    /// that the batch disables.
    function takeFreeFocus() {
        const holder = root.Window.activeFocusItem;
        let around = root;
        while (around && around !== holder)
            around = around.parent;
        if (paused && visible && (!holder || around))
            (account.visible ? account : stop).forceActiveFocus(Qt.TabFocusReason);
    }

    /// Retries `batchToRetry`, which has ended, and shows `accountNotice` and the reason if nothing can be retried.
    function retryWithAccount() {
        const ended = batchToRetry;
        batchToRetry = null;
        const isRefused = batches.retry(ended) === null;
        if (accountNotice)
            notify(accountNotice.message, accountNotice.severity);
        accountNotice = null;
        if (isRefused && ended.retryRefusal !== "")
            notify(ended.retryRefusal, OVToast.Refusal);
    }

    implicitHeight: Theme.footHeight

    Rectangle {  // a question must not look like a state
        anchors.verticalCenter: parent.verticalCenter
        x: actions.x - Theme.unit
        width: actions.width + 2 * Theme.unit
        height: Theme.controlHeight
        border.color: Theme.colours.warnLine
        border.width: Theme.line
        color: Theme.colours.warnSoft
        radius: Theme.controlRadius
        visible: root.paused
    }
    Row {
        id: state
        readonly property real room: actions.x - Theme.pageMargin

        height: parent.height
        spacing: Theme.pageMargin

        OVLabel {
            id: selected
            width: Math.max(0, Math.min(implicitWidth, state.room))
            height: parent.height
            color: Theme.colours.sub
            objectName: "selectedCount"
            text: root.text + (root.outcome !== "" && !root.incomplete ? "  ·  " + root.outcome : "")
        }
        Row {
            height: parent.height
            spacing: Theme.signGap
            visible: statusLabel.text !== ""

            OVIcon {
                id: sign
                anchors.verticalCenter: parent.verticalCenter
                color: Theme.colours.warn
                name: "alert"
                size: Theme.smallIconSize
            }
            OVLabel {
                id: statusLabel
                readonly property real room: state.room - selected.width - sign.width - Theme.signGap
                    - Theme.pageMargin
                width: Math.max(0, Math.min(implicitWidth, room))
                height: parent.height
                color: Theme.colours.warnText
                objectName: "footWarning"
                text: Array.from([root.warning, root.incomplete ? root.outcome : ""]).filter(part => part !== "")
                    .join("  ·  ")
            }
        }
    }
    Row {
        id: actions
        anchors.right: parent.right
        anchors.rightMargin: root.paused ? Theme.unit : 0
        height: parent.height
        spacing: Theme.pageMargin

        Row {
            height: parent.height
            spacing: Theme.signGap
            visible: root.running || root.showsBatch || root.showsSearch

            OVIcon {
                anchors.verticalCenter: parent.verticalCenter
                color: Theme.colours.warn
                name: "alert"
                size: Theme.smallIconSize
                visible: root.paused
            }
            OVLabel {
                readonly property real room: root.width - Theme.smallIconSize - Theme.signGap - 6 * Theme.pageMargin
                    - (account.visible ? account.width : 0) - resume.width - stop.width
                    - (panel.visible ? panel.width : 0)

                width: root.paused ? Math.max(0, Math.min(implicitWidth, room)) : implicitWidth
                height: parent.height
                color: root.paused ? Theme.colours.warnText : Theme.colours.sub
                objectName: "runningText"
                text: root.paused ? root.question
                    : root.showsBatch ? root.runningBatch
                    : root.showsSearch ? qsTr("正在搜索设备…") : root.runningText
            }
        }
        OVLabel {
            height: parent.height
            color: Theme.colours.bad
            objectName: "runningFailed"
            //: Devices of a running batch.
            text: qsTr("%n 台失败", "", root.batch?.report.failed ?? 0)
            visible: root.showsBatch && !root.paused && root.batch.report.failed > 0
        }
        OVProgressBar {
            width: root.showsBatch ? Theme.batchBarWidth : implicitWidth
            anchors.verticalCenter: parent.verticalCenter
            indeterminate: root.running && !root.showsBatch && root.progress < 0
            value: root.showsBatch ? root.batch.progress
                : root.showsSearch ? root.search.percent / 100 : Math.max(0, root.progress)
            visible: root.running || root.showsSearch || (root.showsBatch && !root.paused)
        }
        OVLabel {
            height: parent.height
            color: Theme.colours.sub
            objectName: "timeLeft"
            text: root.showsBatch ? root.timeLeft(root.batch.secondsLeft) : ""
            visible: text !== "" && !root.paused && !root.compact
        }
        OVLabel {
            height: parent.height
            color: Theme.colours.sub
            font: Theme.figureFont
            text: root.showsBatch ? root.batch.device : root.showsSearch ? root.search.percent + "%" : root.runningDevice
            visible: text !== "" && !root.compact && (root.running || root.showsSearch || (root.showsBatch && !root.paused))
        }
        OVLinkButton {
            id: account
            anchors.verticalCenter: parent.verticalCenter
            objectName: "selectAccountButton"
            text: qsTr("选择账号…")
            toolTip: root.compact ? "" : qsTr("为拒绝了此账号的设备和其余使用此账号的设备选择另一个账号，然后重试")
            visible: root.paused && LoginMemory.accounts !== null && root.batch.devicesOfRefusedAccounts().length > 0
            onClicked: accounts.instance().chooseOther(root.batch.devicesOfRefusedAccounts(), root.batch.refusedAccounts)
        }
        OVLinkButton {
            id: resume
            anchors.verticalCenter: parent.verticalCenter
            objectName: "continueButton"
            text: qsTr("继续")
            visible: root.paused
            onClicked: root.batch.resume()
        }
        OVLinkButton {
            id: stop
            readonly property bool stopping: root.showsBatch ? root.batch.stopping : root.search?.stopping ?? false

            anchors.verticalCenter: parent.verticalCenter
            enabled: !stopping
            objectName: "stopButton"
            text: enabled ? qsTr("停止") : qsTr("正在停止…")
            toolTip: root.compact ? "" : root.paused && !account.visible ? qsTr("停止后，可在设备的右键菜单中选择账号，再重试失败的设备（Esc）")
                : qsTr("停止（Esc）")
            visible: root.showsBatch || root.showsSearch
            onClicked: {
                if (root.showsBatch)
                    root.batch.stop();
                else
                    root.search.stop();
            }
        }
        OVLinkButton {
            anchors.verticalCenter: parent.verticalCenter
            objectName: "retryFailedButton"
            //: %1 is the title of the batch. The page may have a separate retry button.
            text: root.compact || root.showsSearch ? qsTr("重试失败") : qsTr("重试失败：%1").arg(root.batch?.title ?? "")
            toolTip: qsTr("对“%1”中失败和未执行的设备再试一次，密码错误等不会因重试而成功的除外").arg(root.batch?.title ?? "")
            visible: root.incomplete && !root.running && root.batch.retryRefusal === ""
            onClicked: root.batches.retry(root.batch)
        }
        OVLinkButton {
            anchors.verticalCenter: parent.verticalCenter
            objectName: "selectFailedButton"
            text: qsTr("选中未成功")
            toolTip: qsTr("在本页只勾选失败和未执行的设备")
            visible: root.incomplete && !root.running && !root.compact
            onClicked: root.tickRequested(root.batch.failedIdentities())
        }
        OVLinkButton {
            anchors.verticalCenter: parent.verticalCenter
            objectName: "saveResultsButton"
            text: qsTr("保存结果")
            visible: root.ended && !root.running && !root.compact
            onClicked: results.instance().save(root.batch)
        }
        OVLinkButton {
            id: panel
            anchors.verticalCenter: parent.verticalCenter
            objectName: "batchPanelButton"
            text: qsTr("批处理记录")
            visible: root.batch !== null && !root.running && !root.compact
            onClicked: results.instance().show()
        }
    }

    Timer {  // when the buttons are shown
        interval: 0
        running: root.paused
        onTriggered: root.takeFreeFocus()
    }
    Timer {  // after the pages have handled the end of the batch
        id: retrying
        interval: 0
        onTriggered: root.retryWithAccount()
    }
    Connections {
        target: root.batchToRetry

        function onFinished() {
            retrying.start();
        }
    }
    // qmllint disable unqualified
    OVOnDemand {
        id: accounts
        visible: false
        sourceComponent: AccountsDialog {
            accounts: LoginMemory.accounts
            onChosen: {
                if (!root.paused)
                    return;
                root.batchToRetry = root.batch;
                root.batch.stop();
            }
            onNotify: (message, severity) => {
                if (root.batchToRetry === null)
                    root.notify(message, severity);
                else
                    root.accountNotice = {message: message, severity: severity};
            }
        }
    }
    OVOnDemand {
        id: results
        visible: false
        sourceComponent: BatchResults {
            batches: root.batches
            onNotify: (message, severity) => root.notify(message, severity)
        }
    }
    // qmllint enable unqualified
}
