// The search for devices: starts it, and tells whether it runs and how many it has found.
import QtQml
import configtools

QtObject {
    id: root

    required property BusyState busyState
    required property var deviceFactory
    required property SearchReports searchReports
    property int count: 0
    property bool running: false
    property bool searchedNothing: false  // the settings named nothing to search
    property bool searchesLocal: false  // the last search did
    property string searchedRange  // of addresses, "" for none
    /// The networks of the last search, in words: without the local segment when no interface could search it.
    readonly property string searched: {
        const networks = searchReports.networks;
        const local = networks !== "" ? qsTr("本地网段（%1）").arg(networks)
            : searchReports.available ? "" : qsTr("本地网段");
        return [searchesLocal ? local : "", searchedRange].filter(part => part !== "").join(qsTr("、"));
    }
    property int percent: 0  // of a search that runs
    property bool stopping: false
    /// The settings of a search that is to follow the running one, null when none is to.
    property var next: null

    /// Starts a search. One that runs is ended first: two at once would fill the same list, and the first to end
    /// would pass for both.
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

    /// Ends the search: what it has found stays, and no other one follows.
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

    /// The search that ends now has listed `rows` devices and left out `leftOut` answers of further ones.
    signal limited(int rows, int leftOut)

    /// Starts the search that is to follow, once no work needs the rows of the last one any more.
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

        // Later: the work that ends reads its rows once more.
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
