// The main page: the device list, with initialisation, address changes, import and export, adding and deleting. The
// other pages use the same list.
import QtQuick
import configtools

FocusScope {
    id: page

    required property Batches batches  // starts batches for all pages; one batch runs at a time
    required property BusyState busyState  // running work of all pages, and the actions that it blocks
    required property DeviceSearch search  // state of the running and the last search
    required property bool libraryInstalled  // false: there is no device library, so no device can be reached
    property bool simulated: false  // the application shows the demo site
    required property var memory  // a ViewMemory that stores columns and order of the table; null: not stored
    property KnownDevices knownDevices: null  // null: only listed devices are shown
    property DeviceNotes notes: null  // null: devices have no notes
    required property SearchReports searchReports  // report of the last search, and the number of missing devices
    signal searchRequested  // start a search
    signal reportRequested  // open the report of the last search
    signal settingsRequested  // open the search settings
    signal demoRequested  // open the demo site
    signal liveRequested(string ipport)  // open the live window of the device; ipport: "address:port"
    signal galleryRequested(var rows)  // show images of these devices; rows: values of the ticked rows
    signal notify(string message, int severity)  // show this message; severity: an OVToast.Severity
    signal selectionChanged  // the number of ticked devices has changed: the window removes refusals

    readonly property int ticked: devices.checkedCount  // number of ticked devices that the filters show
    readonly property alias deviceTable: devices  // the DeviceTableModel of the table

    // qmllint disable unqualified
    readonly property var addingBatches: AddingBatchesApi  // an AddingBatches: starts batches that add devices
    readonly property var deviceFactory: CDeviceFactoryApi  // access to the device list and the devices
    readonly property var fileDialogs: FileDialogsApi  // the desktop's dialogs for files and folders
    readonly property var webPages: WebPagesApi  // opens web pages of devices in the browser
    // qmllint enable unqualified

    /// Focuses the search field and selects its text.
    function focusSearch() {
        toolBar.focusSearch();
    }

    /// Requests the images of the ticked devices. Refused without a ticked device and while a batch runs.
    function openGallery() {
        if (devices.checkedCount === 0)
            notify(qsTr("请选择一台设备"), OVToast.Refusal);
        else if (batches.mayStart())
            galleryRequested(devices.checkedRows());
    }

    /// Imports the device list at the local `path`, whose suffix is its format; asks for a passphrase first if the list
    /// is encrypted. Refused while other work needs the rows. The result is shown by notify() or a dialog.
    function importList(path) {
        files.importFile(path);
    }

    /// Focuses the table without a focus ring.
    function focusTable() {
        table.takeFocus();
    }

    /// Shows all devices: resets the filters and the search text. IPv4 or IPv6 stays selected.
    function clearFilters() {
        devices.showInitialised = true;
        devices.showUninitialised = true;
        devices.onlyFailed = false;
        toolBar.searchText = "";
    }

    objectName: "pageModifyIP"
    onTickedChanged: selectionChanged()

    DeviceTableModel {
        id: devices
        deviceFactory: page.deviceFactory
        failedMarks: page.batches.failedMarks
        knownDevices: page.knownDevices
        notes: page.notes
        searchText: toolBar.searchText.trim()
    }

    DeviceListChanges {
        id: list
        deviceFactory: page.deviceFactory
        shown: page.visible
        onReadingRequested: devices.refresh()
    }
    Connections {
        target: page.deviceFactory

        function onSignalTunnelBroken(deviceId) {
            list.note();
            page.notify(deviceId === "" ? qsTr("P2P服务已断开，P2P设备暂时无法访问")
                : qsTr("到P2P设备 %1 的连接已断开，请删除后重新添加").arg(deviceId), OVToast.Error);
        }
    }

    OVClipboard {
        id: clipboard
    }

    BusyReport {
        active: files.writing
        state: page.busyState
        title: qsTr("导出")
    }
    OVBatchRefusals {
        batches: page.batches
        shown: page.visible
        onNotify: (message, severity) => page.notify(message, severity)
    }

    ModifyIPBatches {
        id: changes
        batches: page.batches
        busyState: page.busyState
        deviceFactory: page.deviceFactory
        deviceTable: devices
        onBatchStarted: page.focusTable()
        onNotify: (message, severity) => page.notify(message, severity)
    }

    ModifyIPFiles {
        id: files
        addingBatches: page.addingBatches
        batches: page.batches
        busyState: page.busyState
        deviceFactory: page.deviceFactory
        deviceTable: devices
        fileDialogs: page.fileDialogs
        shown: page.visible
        onNotify: (message, severity) => page.notify(message, severity)
    }

    ModifyIPGroups {
        id: groups
        deviceTable: devices
        knownDevices: page.knownDevices
    }

    ModifyIPDevices {
        id: removal
        busyState: page.busyState
        deviceTable: devices
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
        onOwnChosen: (key, values) => {
            if (key === "gallery")
                page.openGallery();
            else if (!groups.take(key, values))
                changes.modifyRow(devices.rowOf(values.identity));
        }
        tickedDevices: () => devices.checkedMacs()
        onSimilarRequested: (key, values) => devices.checkSimilar(devices.rowOf(values.identity), key)
    }

    ModifyIPAdding {
        id: adding
        addingBatches: page.addingBatches
        batches: page.batches
        busyState: page.busyState
        deviceFactory: page.deviceFactory
        onAdded: devices.refresh()
        onNotify: (message, severity) => page.notify(message, severity)
    }

    ModifyIPToolBar {
        id: toolBar
        x: Theme.pageMargin
        width: parent.width - 2 * Theme.pageMargin
        height: implicitHeight
        ipv6: devices.ipv6
        devices: devices
        showInitialised: devices.showInitialised
        showUninitialised: devices.showUninitialised
        tipDrop: Theme.toolTipDrop + table.y - height
        upgradingCount: devices.checkedUpgradingCount
        onAddFavouriteRequested: adding.openFavourites()
        onAddIpRequested: adding.openIp()
        onAddP2pRequested: adding.openP2p()
        onDeleteRequested: removal.removeChecked()
        onExportRequested: files.startExport()
        onGalleryRequested: page.openGallery()
        onImportRequested: files.startImport()
        onInitialiseRequested: changes.initialise()
        onInitialisedToggled: shown => devices.showInitialised = shown
        onIpv6Chosen: ipv6 => devices.ipv6 = ipv6
        onModifyRequested: changes.modifyChecked()
        onUninitialisedToggled: shown => devices.showUninitialised = shown
    }

    ModifyIPNotice {
        id: notice
        x: Theme.pageMargin
        y: toolBar.height
        width: parent.width - 2 * Theme.pageMargin
        listedCount: devices.listedCount
        searchReports: page.searchReports
        searching: page.search.running
        totalCount: devices.totalCount
        visible: applies && table.count > 0
        onReportRequested: page.reportRequested()
        onSearchRequested: page.searchRequested()
    }

    ModifyIPTable {
        id: table
        x: Theme.pageMargin
        y: toolBar.height + (notice.visible ? notice.height + Theme.unit : 0)
        width: parent.width - 2 * Theme.pageMargin
        height: foot.y - y
        checkState: devices.checkState
        deviceFactory: page.deviceFactory
        focus: true
        ipv6: devices.ipv6
        model: devices
        objectName: "deviceTable"
        sortKey: devices.sortKey
        sortOrder: devices.sortOrder
        onAllToggled: checked => devices.setAllChecked(checked)
        onCopyRequested: row => clipboard.copy(devices.textOf([row]))
        onDetailRequested: row => deviceActions.showDetail(devices.get(row))
        onEditRequested: row => changes.modifyRow(row)
        onLiveRequested: row => page.liveRequested(devices.get(row).ipport)
        onMenuRequested: (row, position) => {
            const values = devices.get(row);
            menu.openAt(position, values, [{
                key: "edit", text: qsTr("修改IP地址"),
                enabled: !values.absent && !devices.ipv6 && !UpgradeTools.isRunning(values.upgraderes ?? UpgradeTools.None)
            }, {
                key: "gallery", text: qsTr("查看勾选设备的图像"), enabled: devices.checkedCount > 0
            }].concat(groups.entriesFor(values)));
        }
        onNoteRequested: row => deviceActions.editNote(devices.get(row))
        onRangeToggled: (first, last, checked) => devices.setRangeChecked(first, last, checked)
        onRowActivated: row => {
            if (!devices.get(row).absent)
                deviceActions.showDetail(devices.get(row));
        }
        onSortRequested: key => devices.toggleSort(key)
        onWebRequested: row => deviceActions.openWebPage(devices.get(row))

        ModifyIPEmptyState {
            anchors.fill: parent
            hasReport: page.searchReports.available
            helps: true
            hiddenCount: devices.totalCount
            libraryInstalled: page.libraryInstalled
            simulated: page.simulated
            searched: page.search.searched
            searching: page.search.running
            searchesNothing: page.search.searchedNothing
            onAddRequested: adding.openIp()
            onDemoRequested: page.demoRequested()
            onFiltersCleared: page.clearFilters()
            onReportRequested: page.reportRequested()
            onSearchRequested: page.searchRequested()
            onSettingsRequested: page.settingsRequested()
        }
    }

    TableMemory {
        memory: page.memory
        model: devices
        name: "device"
        table: table
    }

    OVFootBar {
        id: foot
        x: Theme.pageMargin
        y: parent.height - height
        width: parent.width - 2 * Theme.pageMargin
        batches: page.batches
        running: files.running
        runningText: files.runningText
        search: page.search
        //: In the status line of a page.
        text: qsTr("%n台设备已选中", "", devices.checkedCount)
        //: Number of devices whose address another device has, too.
        warning: devices.conflictCount > 0 ? qsTr("%n 台设备IP地址冲突", "", devices.conflictCount) : ""
        onNotify: (message, severity) => page.notify(message, severity)
        onTickRequested: identities => devices.setCheckedDevices(identities)
    }
}
