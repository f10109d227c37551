// The device search of the window: start, stop, state and number of devices found. A search removes all rows of the
// device list without a failed mark, so the caller of start() asks BusyState before.
import QtQml
import configtools

QtObject {
    id: root

    required property BusyState busyState  // the search is registered there while it runs
    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    required property SearchReports searchReports  // gets the start and the end of each search
    property KnownDevices knownDevices: null  // null: no devices are known from earlier searches
    property int count: 0  // number of IPv4 devices found by the running or last search
    property bool running: false  // a search runs
    property bool searchedNothing: false  // the settings of the last search select no network
    property bool searchesLocal: false  // the last search included the local network
    property string searchedRange  // address range of the last search, "first - last"; "" for none
    /// Networks of the last search as text. Without the local network if no interface could search it.
    readonly property string searched: {
        const networks = searchReports.networks;
        const local = networks !== "" ? qsTr("本地网段（%1）").arg(networks)
            : searchReports.available ? "" : qsTr("本地网段");
        return [searchesLocal ? local : "", searchedRange].filter(part => part !== "").join(qsTr("、"));
    }
    property int percent: 0  // progress of the search, 0 to 100
    property bool stopping: false  // the running search was asked to stop; after its end: it was stopped
    property var next: null  // settings of the search to start after the running one; null for none

    /// Starts a search of the networks in `settings`, which must be the stored ones, see SearchSettings.read(): their
    /// range and default account are passed to the back end, which reads from the settings file when the search starts
    /// whether the local network is searched and whether devices are logged in to. A running search is stopped first,
    /// and the new one starts after its end: two searches would fill the same list and report one end.
    function start(settings) {
        if (running) {
            next = settings;
            end();
            return;
        }
        count = percent = 0;
        stopping = false;
        running = true;
        searchedNothing = !settings.localDomain && !settings.otherDomain;
        searchesLocal = settings.localDomain;
        searchedRange = settings.otherDomain ? settings.startIP + " - " + settings.endIP : "";
        searchReports.begin(searchesLocal, searchedRange);
        knownDevices?.beginSearch();
        deviceFactory.setDefaultAccount("dh", settings.userName, settings.password);
        if (settings.otherDomain)
            deviceFactory.setSearchByIPInfo("dh", AddressTools.toNumber(settings.startIP),
                                            AddressTools.toNumber(settings.endIP));
        deviceFactory.startSearch("dh");
    }

    /// Stops the search, and drops one that waits. Devices that were found stay in the list. Does nothing without a
    /// search.
    function stop() {
        next = null;
        end();
    }

    /// Asks the back end to stop the running search.
    function end() {
        if (!running || stopping)
            return;
        stopping = true;
        deviceFactory.stopSearch("dh");
    }

    /// The list is full: the search ends with `rows` devices in it, and ignored `leftOut` responses of further ones.
    signal limited(int rows, int leftOut)

    /// Starts the search that waits. Does nothing while a search runs or an operation needs the rows.
    function startNext() {
        const settings = next;
        if (!settings || running || busyState.refusal(BusyState.Search) !== "")
            return;
        next = null;
        start(settings);
    }

    readonly property BusyReport work: BusyReport {
        active: root.running
        need: BusyState.Listing
        state: root.busyState
        title: qsTr("搜索设备")
    }
    readonly property Timer later: Timer {
        interval: 0
        onTriggered: root.startNext()
    }
    readonly property Connections works: Connections {
        target: root.busyState

        // Later, as the ending operation reads its rows once more.
        function onChanged() {
            root.later.start();
        }
    }
    readonly property Connections reports: Connections {
        target: root.deviceFactory

        function onSignalShowUpgradeFinishTip() {
            root.later.start();
        }
        function onSignalSearchCount(devCount) {
            root.count = devCount;
        }
        function onSignalSearchProgress(percent) {
            root.percent = percent;
        }
        function onSignalSearchLimited(rows, leftOut) {
            root.limited(rows, leftOut);
        }
        function onSignalSearchDone() {
            root.running = false;
            root.searchReports.end(root.count, root.stopping);
            root.knownDevices?.endSearch(root.stopping);
            root.startNext();
        }
    }
}
