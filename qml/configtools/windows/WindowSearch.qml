// The search of the main window, with the stored settings. The user cannot start it while running work needs the rows.
import QtQuick
import configtools

Item {
    id: root

    required property BusyState busyState  // running work of all pages, and the actions that it blocks
    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    required property KnownDevices knownDevices  // devices of earlier searches
    required property var localConfig  // a CLocalConfig: the settings of the application
    required property WindowPopups popups  // messages and the dialog of the settings
    required property SearchReports searchReports  // gets the start and the end of each search
    readonly property alias deviceSearch: search
    signal unsaved  // the settings could not be stored

    /// Starts a search in place of a running one, without a question to BusyState.
    function start() {
        search.start(settings.read());
    }

    /// Starts a search requested by the user, in place of a running one. A search removes all rows without a failed
    /// mark (see OVFailedFilter): while work needs the rows, a message box shows the refusal of BusyState instead.
    function request() {
        const refusal = busyState.refusal(BusyState.Search);
        if (refusal !== "")
            popups.showMessage(refusal);
        else
            start();
    }

    /// Opens the search settings.
    function openSettings() {
        popups.openSearchSettings(settings.read());
    }

    /// Stores settings, see SearchSettings.read(), and requests a search. The search uses the stored settings, also if
    /// unsaved() was emitted.
    function applySettings(values) {
        if (!settings.write(values))
            unsaved();
        request();
    }

    visible: false

    SearchSettings {
        id: settings
        localConfig: root.localConfig
    }
    DeviceSearch {
        id: search
        busyState: root.busyState
        deviceFactory: root.deviceFactory
        knownDevices: root.knownDevices
        searchReports: root.searchReports
        onLimited: (rows, leftOut) => root.popups.showMessage(
            qsTr("搜索到的设备超过 %1 台，其余 %2 个应答未列入列表。请缩小搜索范围。").arg(rows).arg(leftOut))
    }
}
