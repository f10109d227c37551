// The live window and the gallery. Both are created when they are opened, and destroyed after they were closed; the
// gallery not before its images are saved.
import QtQuick
import configtools

Item {
    id: root

    required property Batches batches  // starts batches for all pages; one batch runs at a time
    required property BusyState busyState  // running work of all pages, and the actions that it blocks
    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    required property var localConfig  // a CLocalConfig: the settings of the application
    signal notify(string message, int severity)  // the main window shows this message; severity: of OVToast

    /// Opens the live window with the device at `ipport`. `table` is the list of the device, a DeviceTableModel. The
    /// buttons for the previous and the next device step through its ticked devices, or all rows if none is ticked.
    function openLive(ipport, table) {
        liveOnDemand.instance().open(ipport, -1, table, table.checkedCount > 0 ? table.checkedRows() : []);
    }

    /// Like openLive() for a device of a tree, an OVTreeModel. No devices can be added to the live window then.
    function openLiveOfTree(ipport, tree) {
        liveOnDemand.instance().open(ipport, -1, null, tree.devicesToWatch());
    }

    /// Opens the gallery with images of devices. `rows`: values of rows of `table`, a DeviceTableModel.
    function openGallery(rows, table) {
        const window = galleryOnDemand.instance();
        window.table = table;
        window.open(rows);
    }

    /// Closes both windows.
    function close() {
        liveOnDemand.window?.close();
        galleryOnDemand.window?.close();
    }

    visible: false

    // qmllint disable unqualified
    OVWindowOnDemand {
        id: liveOnDemand
        property bool figuresShown: false
        property bool stretched: false

        sourceComponent: LiveWindow {
            batches: root.batches
            busyState: root.busyState
            deviceFactory: root.deviceFactory
            figuresShown: liveOnDemand.figuresShown
            localConfig: root.localConfig
            storedGeometry: liveOnDemand.geometry
            stretched: liveOnDemand.stretched
            onFiguresShownChanged: liveOnDemand.figuresShown = figuresShown
            onNotify: (message, severity) => root.notify(message, severity)
            onStretchedChanged: liveOnDemand.stretched = stretched
        }
    }
    OVWindowOnDemand {
        id: galleryOnDemand
        kept: window?.gallery.saving ?? false

        sourceComponent: GalleryWindow {
            id: images
            property DeviceTableModel table: null
            batches: root.batches
            deviceFactory: root.deviceFactory
            localConfig: root.localConfig
            storedGeometry: galleryOnDemand.geometry
            onLiveRequested: (ipport, channel) => liveOnDemand.instance().open(ipport, channel, table, images.gallery.devices())
        }
    }
    // qmllint enable unqualified
}
