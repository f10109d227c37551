// Requests that a page reads the device list after changes: once per turn of the event loop, only while the page is
// shown.
import QtQml

QtObject {
    id: root

    required property var deviceFactory
    required property bool shown
    property bool outdated: true  // the list changed since the last read
    property bool complete: false  // before, properties of the page may not be set
    signal readingRequested

    /// Called when the list has changed.
    function note() {
        outdated = true;
        turn.start();
    }

    /// Requests a read if the page is shown and outdated.
    function read() {
        if (!complete || !shown || !outdated)
            return;
        outdated = false;
        readingRequested();
    }

    onShownChanged: read()
    Component.onCompleted: {
        complete = true;
        read();
    }

    readonly property Timer turn: Timer {
        interval: 0
        onTriggered: root.read()
    }

    // The end of a search is reported as a change, too.
    readonly property Connections reports: Connections {
        target: root.deviceFactory

        function onSignalAddDeviceToTable() {
            root.note();
        }
        function onSignalAddSingleDeviceToTable() {
            root.note();
        }
    }
}
