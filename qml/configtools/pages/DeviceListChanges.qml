// Decides when a page reads the device list again after changes. Several changes in one turn of the event loop cause
// one request. While the page is hidden, a change is only noted; the request follows when the page is shown.
import QtQml

QtObject {
    id: root

    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    required property bool shown  // the page is visible
    property bool outdated: true  // the list changed since the last read, or was not read yet
    property bool complete: false  // this object is created; before that, the properties of the page may not be set
    signal readingRequested  // the page reads its model again

    /// Notes a change of the list. Reports of the factory are noted without this function; a page calls it for other
    /// changes.
    function note() {
        outdated = true;
        turn.start();
    }

    /// Requests a read now if the page is shown and the list is `outdated`; otherwise does nothing.
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
