// The device search: start, stop, state and number of devices found.
import QtQml
import configtools

QtObject {
    id: root

    required property BusyState busyState
    required property var deviceFactory
    required property SearchReports searchReports
    property int count: 0
    property bool running: false
    property bool searchedNothing: false  // the settings select no network
    property bool searchesLocal: false  // the last search included the local network
    property string searchedRange  // address range of the last search, "" for none
    /// Networks of the last search as text. Without the local network if no interface could search it.
    readonly property string searched: {
        const networks = searchReports.networks;
        const local = networks !== "" ? qsTr("本地网段（%1）").arg(networks)
            : searchReports.available ? "" : qsTr("本地网段");
        return [searchesLocal ? local : "", searchedRange].filter(part => part !== "").join(qsTr("、"));
    }
    property int percent: 0  // progress of the search, 0 to 100
    property bool stopping: false
    /// Settings of the search to start after the running one, null for none.
    property var next: null

    /// Starts a search, after stopping a running one: two searches would fill the same list and report one end.
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
        deviceFactory.setDefaultAccount("dh", settings.userName, settings.password);
        if (settings.otherDomain)
            deviceFactory.setSearchByIPInfo("dh", AddressTools.toNumber(settings.startIP),
                                            AddressTools.toNumber(settings.endIP));
        deviceFactory.startSearch("dh");
    }

    /// Stops the search. Its devices stay in the list.
    function stop() {
        next = null;
        end();
    }

    function end() {
        if (!running || stopping)
            return;
        stopping = true;
        deviceFactory.stopSearch("dh");
    }

    /// The search ends with `rows` devices in the list and `leftOut` ignored responses of further ones.
    signal limited(int rows, int leftOut)

    /// Starts the next search when no operation needs the current rows.
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
            root.startNext();
        }
    }
}
