// The CGI page: sends CGI commands (paths with parameters, over HTTP) to the device of a row, to all ticked devices, or
// as listed in a workbook.
import QtQuick
import QtQuick.Layouts
import configtools

FocusScope {
    id: page

    required property Batches batches  // starts batches for all pages; one batch runs at a time
    property DeviceSearch search: null  // null: no search is shown
    readonly property bool searching: search?.running ?? false
    required property bool libraryInstalled  // false: there is no device library, so no device can be reached
    property var memory: null  // a ViewMemory that stores columns and order of the table; null: not stored
    property DeviceNotes notes: null  // null: devices have no notes
    signal searchRequested  // start a search
    signal liveRequested(string ipport)  // open the live window of the device; ipport: "address:port"
    signal notify(string message, int severity)  // show this message; severity: an OVToast.Severity
    signal selectionChanged  // the number of ticked devices has changed: the window removes refusals

    readonly property int ticked: devices.checkedCount  // number of ticked devices that the filters show
    readonly property alias deviceTable: devices  // the DeviceTableModel of the table

    // qmllint disable unqualified
    readonly property var deviceFactory: CDeviceFactoryApi  // access to the device list and the devices
    readonly property var cgiManager: CGIConfigManageApi  // stored commands, template, clipboard
    readonly property var cgiBatches: CgiBatchesApi  // sends commands in batches
    readonly property var fileDialogs: FileDialogsApi  // the desktop's dialogs for files and folders
    readonly property var webPages: WebPagesApi  // opens web pages of devices in the browser
    // qmllint enable unqualified

    /// Focuses the search field and selects its text.
    function focusSearch() {
        searchField.forceActiveFocus(Qt.ShortcutFocusReason);
        searchField.selectAll();
    }

    /// Opens the dialog for the command to all ticked devices. Refused if none is ticked.
    function askForAll() {
        if (devices.checkedCount === 0)
            notify(qsTr("请选择一台设备。"), OVToast.Refusal);
        else
            batchWindow.instance().ask(devices.checkedCount);
    }

    /// Sends a command to the ticked devices after a confirmation that lists them. A single device that has no
    /// warning and is not skipped gets the command without a question.
    function askToSend(command) {
        preview.instance().askRows(qsTr("将向下列设备发送命令："), command, devices.checkedRows(), {
            title: qsTr("批量配置CGI"), okText: qsTr("执行"), listed: true, quick: true,
            action: identities => cgiSender.sendToAll(identities, command)
        });
    }

    /// Runs an entry of entriesOf() for a row: "send" (its command), "response" (show the complete response) or
    /// "copyResponse".
    function actOn(key, row) {
        if (row < 0)
            return;  // the device was hidden or removed while the menu was open
        const values = Object.assign({}, devices.get(row));
        if (key === "send") {
            cgiSender.send(row);
        } else if (key === "response") {
            responseWindow.instance().show(values.ipport, cgiSender.responseOf(row));
        } else {
            cgiManager.copyText(cgiSender.responseOf(row));
            notify(qsTr("复制成功"), OVToast.Success);
        }
    }

    /// The entries of this page in the context menu of a row, see OVEntryMenu. `values`: of the row; "url" is its
    /// command, "result" the start of the last response.
    function entriesOf(values) {
        const isUpgrading = UpgradeTools.isRunning(values.upgraderes ?? UpgradeTools.None);
        const hasResponse = (values.result ?? "") !== "";
        return [
            {key: "send", text: qsTr("发送命令"), enabled: !isUpgrading && (values.url ?? "") !== ""},
            {key: "response", text: qsTr("查看全部结果"), enabled: hasResponse},
            {key: "copyResponse", text: qsTr("复制结果"), enabled: hasResponse}
        ];
    }

    objectName: "pageCGIConfig"
    onTickedChanged: selectionChanged()

    DeviceTableModel {
        id: devices
        deviceFactory: page.deviceFactory
        failedMarks: page.batches.failedMarks
        notes: page.notes
        oddAddressesFirst: true
        searchText: searchField.text.trim()
    }
    DeviceListChanges {
        deviceFactory: page.deviceFactory
        shown: page.visible
        onReadingRequested: devices.refresh()
    }
    OVBatchRefusals {
        batches: page.batches
        shown: page.visible
        onNotify: (message, severity) => page.notify(message, severity)
    }
    CgiCommands {
        id: cgiCommands
        cgiManager: page.cgiManager
    }
    CgiSender {
        id: cgiSender
        batches: page.batches
        cgiBatches: page.cgiBatches
        commands: cgiCommands
        deviceFactory: page.deviceFactory
        deviceTable: devices
        objectName: "cgiSender"
        onAccountRefused: (identity, ipport, result) => {
            if (page.visible)
                relogin.instance().askFor(identity, ipport, result);
        }
        onFailed: lines => {
            if (page.visible)
                responseWindow.instance().show(qsTr("未成功的设备"), lines.join("\n"));
        }
        onNotify: (message, severity) => page.notify(message, severity)
    }
    CgiWorkbook {
        id: workbook
        deviceFactory: page.deviceFactory
        workbooks: page.cgiBatches.workbooks
        cgiManager: page.cgiManager
        fileDialogs: page.fileDialogs
        shown: page.visible
        onNotify: (message, severity) => page.notify(message, severity)
    }
    DeviceActions {
        id: deviceActions
        deviceFactory: page.deviceFactory
        fileDialogs: page.fileDialogs
        notes: page.notes
        webPages: page.webPages
        onNotify: (message, severity) => page.notify(message, severity)
    }
    DeviceMenu {
        id: menu
        actions: deviceActions
        batches: page.batches
        onLiveRequested: ipport => page.liveRequested(ipport)
        onOwnChosen: (key, values) => page.actOn(key, devices.rowOf(values.identity))
        tickedDevices: () => devices.checkedMacs()
        onSimilarRequested: (key, values) => devices.checkSimilar(devices.rowOf(values.identity), key)
    }
    // qmllint disable unqualified
    OVOnDemand {
        id: batchWindow
        visible: false
        sourceComponent: BatchCGIWindow {
            commands: cgiCommands
            sender: cgiSender
            onConfirmed: command => page.askToSend(command)
        }
    }
    OVOnDemand {
        id: preview
        visible: false
        sourceComponent: BatchPreviewDialog {
            deviceFactory: page.deviceFactory
        }
    }
    OVOnDemand {
        id: relogin
        visible: false
        sourceComponent: ReloginDialog {
            property string identity

            function askFor(identity, ipport, result) {
                this.identity = identity;
                ask(devices.get(devices.rowOf(identity)).mac ?? "", ipport,
                    LoginMemory.accountFor(ipport, page.deviceFactory).user, result);
            }

            deviceFactory: page.deviceFactory
            onResponded: (account, password) => {
                if (account === "" && password === "")
                    return;
                page.deviceFactory.updataDeviceInfo("dh", "username", account, mac, ipport);
                cgiSender.send(devices.rowOf(identity));
            }
        }
    }
    OVOnDemand {
        id: responseWindow
        visible: false
        sourceComponent: CgiResponseWindow {
            cgiManager: page.cgiManager
            fileDialogs: page.fileDialogs
        }
    }
    // qmllint enable unqualified

    RowLayout {
        id: toolBar

        readonly property int tipDrop: Theme.toolTipDrop  // further distance from a button to its tip, see OVToolTip
        readonly property bool keyGroup: true  // one stop of the Tab key, see keygroups.js

        x: Theme.pageMargin
        width: parent.width - 2 * x
        height: Theme.toolBarHeight
        spacing: Theme.pageMargin

        OVActionRow {
            OVButton {
                kind: OVButton.Primary
                objectName: "batchCgiButton"
                text: qsTr("批量配置CGI")
                toolTip: qsTr("向勾选的设备发送同一条命令")
                onClicked: page.askForAll()
            }
            OVButton {
                objectName: "workbookCgiButton"
                text: qsTr("批量表单操作")
                toolTip: qsTr("执行表格文件中的命令，并把结果写回文件")
                onClicked: workbook.choose()
            }
            OVButton {
                objectName: "cgiTemplateButton"
                text: qsTr("打开模板")
                toolTip: qsTr("打开命令表格的模板文件")
                onClicked: workbook.openTemplate()
            }
        }
        Item {
            Layout.fillWidth: true
        }
        OVFailedFilter {
            devices: devices
        }
        OVTextField {
            id: searchField
            Layout.maximumWidth: Theme.searchFieldWidth
            Layout.minimumWidth: Theme.searchFieldMinimum
            Layout.preferredWidth: Theme.searchFieldWidth
            Layout.fillWidth: true
            clearable: true
            iconName: "search"
            objectName: "cgiSearchField"
            placeholderText: qsTr("搜索...")
        }
    }
    CgiTable {
        id: table
        x: Theme.pageMargin
        y: toolBar.height
        width: parent.width - 2 * x
        height: foot.y - y
        checkState: devices.checkState
        commands: cgiCommands
        deviceFactory: page.deviceFactory
        focus: true
        model: devices
        objectName: "cgiTable"
        sortKey: devices.sortKey
        sortOrder: devices.sortOrder
        onAllToggled: checked => devices.setAllChecked(checked)
        onResponseCopyRequested: row => page.actOn("copyResponse", row)
        onResponseOpenRequested: row => page.actOn("response", row)
        onCopyRequested: row => deviceActions.copy(devices.textOf([row]))
        onMenuRequested: (row, position) => menu.openAt(position, devices.get(row), page.entriesOf(devices.get(row)))
        onNoteRequested: row => deviceActions.editNote(devices.get(row))
        onRangeToggled: (first, last, checked) => devices.setRangeChecked(first, last, checked)
        onRowActivated: row => deviceActions.showDetail(devices.get(row))
        onSendRequested: row => page.actOn("send", row)
        onSortRequested: key => devices.toggleSort(key)

        ModifyIPEmptyState {
            anchors.fill: parent
            hiddenCount: devices.totalCount
            libraryInstalled: page.libraryInstalled
            searching: page.searching
            searchesNothing: false
            onFiltersCleared: {
                devices.onlyFailed = false;
                searchField.text = "";
            }
            onSearchRequested: page.searchRequested()
        }
    }
    TableMemory {
        memory: page.memory
        model: devices
        name: "cgi"
        table: table
    }
    OVFootBar {
        id: foot
        x: Theme.pageMargin
        y: parent.height - height
        width: parent.width - 2 * x
        batches: page.batches
        search: page.search
        //: In the status line of a page.
        text: qsTr("%n台设备已选中", "", devices.checkedCount)
        onNotify: (message, severity) => page.notify(message, severity)
        onTickRequested: identities => devices.setCheckedDevices(identities)
    }
}
