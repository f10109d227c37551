// Asks a page to read the list of devices when it has changed: once for all changes of one turn of the event loop, and
// not while the page is hidden.
import QtQml

QtObject {
    id: root

    required property var deviceFactory
    required property bool shown
    property bool outdated: true  // the page lacks what has changed since it read
    property bool complete: false  // before, what the page reads with may not be set yet
    signal readingRequested

    /// The list has changed.
    function note() {
        outdated = true;
        turn.start();
    }

    /// Reads now, when the page is shown and lacks something.
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
