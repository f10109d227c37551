// Keyboard shortcuts of the main window. They are inactive while a dialog or menu is open.
import QtQuick
import QtQml

Item {
    id: root

    required property int tabCount  // number of tabs; Ctrl+1 is the first
    required property int currentTab  // index
    required property bool stoppable  // a batch or a search runs
    signal searchRequested  // F5: start a search
    signal helpRequested  // F1: open the manual
    signal settingsRequested  // open the search settings
    signal findRequested  // focus the search field
    signal galleryRequested  // open the images of the ticked devices
    signal siteReportRequested
    signal stopRequested  // Escape: stop the running work
    signal tabRequested(int index)  // show the tab with this index

    /// Requests the tab that is `steps` (1 or -1) further; after the last one the first follows.
    function turn(steps) {
        tabRequested((currentTab + tabCount + steps) % tabCount);
    }

    Shortcut { sequence: "Escape"; enabled: root.stoppable; onActivated: root.stopRequested() }
    Shortcut { sequence: "F5"; onActivated: root.searchRequested() }
    Shortcut { sequence: "F1"; onActivated: root.helpRequested() }
    Shortcut { sequence: "Ctrl+,"; onActivated: root.settingsRequested() }
    Shortcut { sequence: "Ctrl+F"; onActivated: root.findRequested() }
    Shortcut { sequence: "Ctrl+G"; onActivated: root.galleryRequested() }
    Shortcut { sequence: "Ctrl+R"; onActivated: root.siteReportRequested() }
    Shortcut { sequence: "Ctrl+Tab"; onActivated: root.turn(1) }
    Shortcut { sequence: "Ctrl+Shift+Tab"; onActivated: root.turn(-1) }

    // qmllint disable unqualified
    Instantiator {
        model: root.tabCount

        Shortcut {
            required property int index
            sequence: "Ctrl+" + (index + 1)
            onActivated: root.tabRequested(index)
        }
    }
    // qmllint enable unqualified
}
