// The pages of the main window, one for each tab. All except the first are made when they are first shown.
import QtQuick
import QtQuick.Layouts
import configtools

StackLayout {
    id: root

    required property Batches batches
    required property BusyState busyState
    required property bool libraryInstalled
    required property var memory
    required property DeviceNotes notes
    required property WindowPopups popups
    required property DeviceSearch search
    required property SearchReports searchReports
    required property bool simulated
    signal demoRequested
    signal searchRequested
    signal settingsRequested

    /// Does `action` when the page in front can be left. Returns whether the user is asked about unsaved settings first.
    function leave(action) {
        if (deviceConfigPage.visible && busyState.losesEdits(BusyState.ChangeTab))
            return (deviceConfigPage.item as PageDeviceConfig).leave(action);
        action();
        return false;
    }

    function pageAt(index) {
        const holder = children[index];
        return holder.item ?? holder;
    }

    function takeFocus(index) {
        pageAt(index).forceActiveFocus(Qt.ShortcutFocusReason);
    }

    /// The search field of the page in front.
    function focusSearch() {
        pageAt(currentIndex).focusSearch();
    }

    function focusTable() {
        modifyIpPage.focusTable();
    }

    function openGallery() {
        modifyIpPage.openGallery();
    }

    function disablePasswordEditor() {
        systemConfigPage.item?.disablePasswordEditor();
    }


    PageModifyIP {
        id: modifyIpPage
        batches: root.batches
        busyState: root.busyState
        libraryInstalled: root.libraryInstalled
        memory: root.memory
        notes: root.notes
        simulated: root.simulated
        search: root.search
        searchReports: root.searchReports
        onDemoRequested: root.demoRequested()
        onGalleryRequested: rows => root.popups.openGallery(rows, modifyIpPage.deviceTable)
        onLiveRequested: ipport => root.popups.openLive(ipport, modifyIpPage.deviceTable)
        onReportRequested: root.popups.openSearchReport()
        onSaid: (message, kind) => root.popups.say(message, kind)
        onSearchRequested: root.searchRequested()
        onSettingsRequested: root.settingsRequested()
        onSettled: root.popups.settle()
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
                onLiveRequested: ipport => root.popups.openLive(ipport, upgrades.deviceTable)
                onSaid: (message, kind) => root.popups.say(message, kind)
                onSearchRequested: root.searchRequested()
                onSettled: root.popups.settle()
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
                libraryInstalled: root.libraryInstalled
                notes: root.notes
                search: root.search
                onLiveRequested: ipport => root.popups.openLiveOfTree(ipport, configs.treeDevices)
                onSaid: (message, kind, stay) => root.popups.say(message, kind, stay)
                onSearchRequested: root.searchRequested()
                onSettled: root.popups.settle()
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
                libraryInstalled: root.libraryInstalled
                notes: root.notes
                search: root.search
                onLiveRequested: ipport => root.popups.openLiveOfTree(ipport, systems.treeDevices)
                onSaid: (message, kind) => root.popups.say(message, kind)
                onSearchRequested: root.searchRequested()
                onSettled: root.popups.settle()
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
                onLiveRequested: ipport => root.popups.openLive(ipport, commands.deviceTable)
                onSaid: (message, kind) => root.popups.say(message, kind)
                onSearchRequested: root.searchRequested()
                onSettled: root.popups.settle()
            }
        }
        // qmllint enable unqualified
    }
}
