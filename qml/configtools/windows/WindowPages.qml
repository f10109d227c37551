// The pages of the main window, one for each tab. All except the first are created on first use. Requests of the pages
// are forwarded to the window and to its popups.
import QtQuick
import QtQuick.Layouts
import configtools

StackLayout {
    id: root

    required property Batches batches  // starts batches for all pages; one batch runs at a time
    required property BusyState busyState  // running work of all pages, and the actions that it blocks
    required property bool libraryInstalled  // false: there is no device library, so no device can be reached
    required property KnownDevices knownDevices
    required property var memory  // a ViewMemory that stores columns and order of the tables
    required property DeviceNotes notes  // notes of the user about devices
    required property WindowPopups popups  // messages, live window and gallery
    required property DeviceSearch search  // state of the running and the last search
    required property SearchReports searchReports  // report of the last search
    required property bool simulated  // the application shows the demo site
    signal demoRequested  // restart on the demo site
    signal searchRequested  // start a search
    signal settingsRequested  // open the search settings

    /// Runs `action` if the current page can be left, and returns false. If the configuration page has unsaved
    /// settings, asks the user and returns true; `action` then runs after the answer, unless the user cancels.
    function leave(action) {
        if (deviceConfigPage.visible && busyState.losesEdits(BusyState.ChangeTab))
            return (deviceConfigPage.item as PageDeviceConfig).leave(action);
        action();
        return false;
    }

    /// The page of a tab (index from 0); an empty OVOnDemand if it was not created yet.
    function pageAt(index) {
        const holder = children[index];
        return holder.item ?? holder;
    }

    /// Gives the page of a tab the keyboard focus.
    function takeFocus(index) {
        pageAt(index).forceActiveFocus(Qt.ShortcutFocusReason);
    }

    /// Focuses the search field of the current page.
    function focusSearch() {
        pageAt(currentIndex).focusSearch();
    }

    /// Focuses the table of the main page.
    function focusTable() {
        modifyIpPage.focusTable();
    }

    /// Imports a device list on the main page.
    function importList(path) {
        modifyIpPage.importList(path);
    }

    /// Opens the images of the devices that are ticked on the main page, whichever page is shown.
    function openGallery() {
        modifyIpPage.openGallery();
    }

    /// Names of the rows that are ticked on the main page.
    function tickedDevices() {
        return modifyIpPage.deviceTable.checkedMacs();
    }

    /// Ends the input of a new password on the system page.
    function disablePasswordEditor() {
        systemConfigPage.item?.disablePasswordEditor();
    }


    PageModifyIP {
        id: modifyIpPage
        batches: root.batches
        busyState: root.busyState
        knownDevices: root.knownDevices
        libraryInstalled: root.libraryInstalled
        memory: root.memory
        notes: root.notes
        simulated: root.simulated
        search: root.search
        searchReports: root.searchReports
        onDemoRequested: root.demoRequested()
        onGalleryRequested: rows => root.popups.media.openGallery(rows, modifyIpPage.deviceTable)
        onLiveRequested: ipport => root.popups.media.openLive(ipport, modifyIpPage.deviceTable)
        onReportRequested: root.popups.openSearchReport()
        onNotify: (message, severity) => root.popups.notify(message, severity)
        onSearchRequested: root.searchRequested()
        onSettingsRequested: root.settingsRequested()
        onSelectionChanged: root.popups.removeRefusals()
    }
    OVOnDemand {
        id: upgradePage
        visible: false
        // qmllint disable unqualified
        sourceComponent: Component {
            PageDeviceUpgrade {
                id: upgrades
                batches: root.batches
                libraryInstalled: root.libraryInstalled
                memory: root.memory
                notes: root.notes
                search: root.search
                onLiveRequested: ipport => root.popups.media.openLive(ipport, upgrades.deviceTable)
                onNotify: (message, severity) => root.popups.notify(message, severity)
                onSearchRequested: root.searchRequested()
                onSelectionChanged: root.popups.removeRefusals()
            }
        }
        // qmllint enable unqualified
    }
    OVOnDemand {
        id: deviceConfigPage
        visible: false
        // qmllint disable unqualified
        sourceComponent: Component {
            PageDeviceConfig {
                id: configs
                batches: root.batches
                busyState: root.busyState
                knownDevices: root.knownDevices
                libraryInstalled: root.libraryInstalled
                notes: root.notes
                search: root.search
                onLiveRequested: ipport => root.popups.media.openLiveOfTree(ipport, configs.treeDevices)
                onNotify: (message, severity, duration) => root.popups.notify(message, severity, duration)
                onSearchRequested: root.searchRequested()
                onSelectionChanged: root.popups.removeRefusals()
            }
        }
        // qmllint enable unqualified
    }
    OVOnDemand {
        id: systemConfigPage
        visible: false
        // qmllint disable unqualified
        sourceComponent: Component {
            PageSystemConfig {
                id: systems
                batches: root.batches
                knownDevices: root.knownDevices
                libraryInstalled: root.libraryInstalled
                notes: root.notes
                search: root.search
                onLiveRequested: ipport => root.popups.media.openLiveOfTree(ipport, systems.treeDevices)
                onNotify: (message, severity) => root.popups.notify(message, severity)
                onSearchRequested: root.searchRequested()
                onSelectionChanged: root.popups.removeRefusals()
            }
        }
        // qmllint enable unqualified
    }
    OVOnDemand {
        id: cgiConfigPage
        visible: false
        // qmllint disable unqualified
        sourceComponent: Component {
            PageCGIConfig {
                id: commands
                batches: root.batches
                libraryInstalled: root.libraryInstalled
                memory: root.memory
                notes: root.notes
                search: root.search
                onLiveRequested: ipport => root.popups.media.openLive(ipport, commands.deviceTable)
                onNotify: (message, severity) => root.popups.notify(message, severity)
                onSearchRequested: root.searchRequested()
                onSelectionChanged: root.popups.removeRefusals()
            }
        }
        // qmllint enable unqualified
    }
}
