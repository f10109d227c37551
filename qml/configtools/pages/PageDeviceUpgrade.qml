// The upgrade page: the firmware file of each device, upgrades of ticked devices or by a document (a workbook with
// devices and firmware files), and their progress.
import QtQuick
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
    readonly property var fileDialogs: FileDialogsApi  // the desktop's dialogs for files and folders
    readonly property var localConfig: LocalConfigApi  // a CLocalConfig: the settings of the application
    readonly property var webPages: WebPagesApi  // opens web pages of devices in the browser
    readonly property var upgradeBatches: UpgradeBatchesApi  // an UpgradeBatches, which runs the upgrades
    // qmllint enable unqualified

    /// Focuses the search field and selects its text.
    function focusSearch() {
        toolBar.focusSearch();
    }

    /// Maximum number of devices upgraded at the same time, 1 to 16.
    property int parallelUpgrades: localConfig.parallelUpgrades()

    /// Stores the number of concurrent upgrades (1 to 16). It applies to upgrades started from now on. If it cannot be
    /// stored, the earlier number stays and the failure is notified.
    function chooseParallelUpgrades(count) {
        localConfig.setParallelUpgrades(count);
        parallelUpgrades = localConfig.parallelUpgrades();
        if (parallelUpgrades !== count)
            notify(qsTr("设置无法保存，请检查程序所在文件夹的写入权限"), OVToast.Error);
    }

    /// Runs an entry of entriesOf() for the device of a row: "file" (choose its file), "start" or "stop" (its upgrade).
    function actOn(key, row) {
        if (row < 0)
            return;  // the device was hidden or removed while the menu was open
        const identity = Object.assign({}, devices.get(row)).identity;
        if (key === "file")
            work.chooseFile([identity]);
        else if (key === "start")
            work.start([identity]);
        else
            deviceFactory.stopUpgrade("dh", identity);
    }

    /// The entries of this page in the context menu of a row, see OVEntryMenu. `values`: of the row; "upgraderes" is an
    /// UpgradeTools.Result.
    function entriesOf(values) {
        const result = values.upgraderes ?? UpgradeTools.None;
        const isRunning = UpgradeTools.isRunning(result);
        return [
            {key: "file", text: qsTr("选择升级文件"), enabled: !isRunning},
            {key: "start", text: qsTr("升级"), enabled: !isRunning},
            {key: "stop", text: qsTr("停止升级"), enabled: isRunning && UpgradeTools.canStop(result)}
        ];
    }

    objectName: "pageDeviceUpgrade"
    onTickedChanged: selectionChanged()

    DeviceTableModel {
        id: devices
        deviceFactory: page.deviceFactory
        failedMarks: page.batches.failedMarks
        notes: page.notes
        searchText: toolBar.searchText.trim()
    }
    DeviceListChanges {
        id: changes
        deviceFactory: page.deviceFactory
        shown: page.visible
        onReadingRequested: devices.refresh()
    }
    OVBatchRefusals {
        batches: page.batches
        shown: page.visible
        onNotify: (message, severity) => page.notify(message, severity)
    }
    UpgradeWork {
        id: work
        batches: page.batches
        deviceFactory: page.deviceFactory
        deviceTable: devices
        fileDialogs: page.fileDialogs
        shown: page.visible
        upgradeBatches: page.upgradeBatches
        onChanged: changes.note()
        onNotify: (message, severity) => page.notify(message, severity)
    }

    DeviceActions {
        id: deviceActions
        deviceFactory: page.deviceFactory
        fileDialogs: page.fileDialogs
        ipv6: devices.ipv6
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

    UpgradeToolBar {
        id: toolBar
        x: Theme.pageMargin
        width: parent.width - 2 * x
        parallelUpgrades: page.parallelUpgrades
        ipv6: devices.ipv6
        devices: devices
        onParallelUpgradesChosen: count => page.chooseParallelUpgrades(count)
        onDocumentRequested: work.chooseDocument()
        onFileRequested: work.chooseFileForChecked()
        onIpv6Chosen: ipv6 => devices.ipv6 = ipv6
        onRetryRequested: work.retry()
        onStartRequested: work.startChecked()
        onTemplateRequested: work.openTemplate()
    }
    UpgradeSummary {
        id: summary
        x: Theme.pageMargin
        y: toolBar.height
        width: parent.width - 2 * x
        batch: page.upgradeBatches.last
    }
    UpgradeTable {
        id: table
        x: Theme.pageMargin
        y: summary.y + summary.height
        width: parent.width - 2 * x
        height: foot.y - y
        checkState: devices.checkState
        focus: true
        ipv6: devices.ipv6
        model: devices
        objectName: "upgradeTable"
        sortKey: devices.sortKey
        sortOrder: devices.sortOrder
        onAllToggled: checked => devices.setAllChecked(checked)
        onCopyRequested: row => deviceActions.copy(devices.textOf([row]))
        onFileRequested: row => page.actOn("file", row)
        onMenuRequested: (row, position) => menu.openAt(position, devices.get(row), page.entriesOf(devices.get(row)))
        onNoteRequested: row => deviceActions.editNote(devices.get(row))
        onRangeToggled: (first, last, checked) => devices.setRangeChecked(first, last, checked)
        onRowActivated: row => deviceActions.showDetail(devices.get(row))
        onSortRequested: key => devices.toggleSort(key)
        onStartRequested: row => page.actOn("start", row)
        onStopRequested: row => page.actOn("stop", row)

        ModifyIPEmptyState {
            anchors.fill: parent
            hiddenCount: devices.totalCount
            libraryInstalled: page.libraryInstalled
            searching: page.searching
            searchesNothing: false
            onFiltersCleared: {
                devices.onlyFailed = false;
                toolBar.searchText = "";
            }
            onSearchRequested: page.searchRequested()
        }
    }
    TableMemory {
        memory: page.memory
        model: devices
        name: "upgrade"
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
