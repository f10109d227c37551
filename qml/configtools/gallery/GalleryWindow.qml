// Images of several devices: one for each channel. A click requests the live view of the channel. Closing the window
// cancels the batch and removes the images that are not saved.
import QtQuick
import QtQuick.Templates as T
import configtools

T.ApplicationWindow {
    id: window

    required property Batches batches  // starts batches for all pages; one batch runs at a time
    required property var deviceFactory  // a CDeviceFactory: access to the device list and the devices
    required property var localConfig  // a CLocalConfig: the settings of the application
    property string storedGeometry  // see WindowGeometry.stored
    readonly property bool maximised: visibility === Window.Maximized
    readonly property alias gallery: gallery
    property string folder  // path of the folder of the last save
    signal liveRequested(string ipport, int channel)  // ipport: "address:port"; channel from 0

    /// Opens the window, shows the devices of these rows and starts a batch that fetches their images. `rows`: values
    /// of rows of the device list, with "identity", "ipport", "name" and "model". Devices beyond 500 are left out. If
    /// another batch runs, no image is fetched, Batches emits refused(), and the cells keep waiting.
    function open(rows) {
        bar.outcome = "";
        if (!visible)
            show();
        raise();
        requestActivate();
        gallery.show(rows);
        grid.currentIndex = 0;
        grid.positionViewAtBeginning();
        grid.forceActiveFocus();
    }

    /// See WindowGeometry.text().
    function geometryText() {
        return geometry.text();
    }

    /// Requests the live view of the channel of a cell. Ignores an invalid index.
    function watch(row) {
        const values = Object.assign({}, gallery.get(row));
        if (values.ipport !== undefined)
            liveRequested(values.ipport, values.channel);
    }

    /// Fetches all images again. Ignored while a batch runs, also one of a page.
    function fetchAll() {
        bar.outcome = "";
        if (bar.canFetch)
            gallery.fetchAll();
    }

    /// Same for one cell; for all channels of a device that has only one cell, as its channels may be unknown.
    function fetch(row) {
        bar.outcome = "";
        if (bar.canFetch)
            gallery.fetch(row);
    }

    /// Saves all images in the background, as "<address>_<port>/<channel>.jpg" (channel from 0) in the folder of
    /// snapshots, replacing existing files; the bar then shows the result. Ignored without images, and while images are
    /// fetched or saved.
    function saveAll() {
        bar.outcome = "";
        if (gallery.images > 0 && gallery.batch === null)
            gallery.saveAll();
    }

    width: Math.min(Theme.liveWidth, Screen.desktopAvailableWidth)
    height: Math.min(Theme.liveHeight, Screen.desktopAvailableHeight)
    minimumWidth: Math.min(Theme.liveMinimumWidth, Screen.desktopAvailableWidth)
    minimumHeight: Math.min(Theme.liveMinimumHeight, Screen.desktopAvailableHeight)
    color: Theme.colours.background
    flags: Qt.Window | Qt.FramelessWindowHint | Qt.WindowSystemMenuHint | Qt.WindowMaximizeButtonHint
    objectName: "galleryWindow"
    title: qsTr("设备图像")
    onClosing: gallery.clear()

    WindowGeometry {
        id: geometry
        stored: window.storedGeometry
        window: window
    }
    ImageGallery {
        id: gallery
        batches: window.batches
        deviceFactory: window.deviceFactory
        onSaved: (files, failures, folder, reason) => {
            window.folder = folder;
            bar.outcomeIsBad = failures > 0;
            bar.outcome = failures === 0 ? qsTr("已保存 %1 幅图像到 %2").arg(files).arg(folder)
                : qsTr("已保存 %1 幅图像到 %2，%3 幅无法写入：%4").arg(files).arg(folder).arg(failures).arg(reason);
        }
    }

    DeviceListChanges {
        deviceFactory: window.deviceFactory
        shown: window.visible
        onReadingRequested: gallery.readDevices()
    }

    Connections {
        target: ChannelRenames

        function onRenamed(ipport, channel, name) {
            gallery.renameChannel(ipport, channel, name);
        }
    }

    Shortcut { sequence: "Esc"; onActivated: window.close() }
    Shortcut { sequence: "F5"; onActivated: window.fetchAll() }
    Shortcut { sequence: "Ctrl+S"; onActivated: window.saveAll() }

    LiveTitleBar {
        id: titleBar
        width: parent.width
        address: qsTr("%n 台设备", "", gallery.deviceCount)
        cursor: window.localConfig
        maximised: window.maximised
        name: window.title
        onCloseRequested: window.close()
        onMaximiseRequested: window.maximised ? window.showNormal() : window.showMaximized()
    }
    GalleryBar {
        id: bar
        y: titleBar.height
        width: parent.width
        gallery: gallery
        otherBatch: window.batches.running && !gallery.batch ? window.batches.current.title : ""
        onAgainRequested: window.fetchAll()
        onFolderRequested: {
            if (!Qt.openUrlExternally("file:///" + window.folder.split("/").map(encodeURIComponent).join("/"))) {
                outcomeIsBad = true;
                outcome = qsTr("无法打开文件夹：%1").arg(window.folder);
            }
        }
        onSaveRequested: window.saveAll()
    }
    GridView {
        id: grid
        readonly property int columns: Math.max(1, Math.floor(width / Theme.galleryCellWidth))

        x: Theme.unit
        y: bar.y + bar.height + Theme.unit
        width: parent.width - 2 * x
        height: parent.height - y
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        cacheBuffer: cellHeight
        cellHeight: Math.round((cellWidth - 2 * Theme.unit) * 9 / 16) + Theme.galleryTextHeight
        cellWidth: Math.floor(width / columns)
        clip: true
        keyNavigationEnabled: true
        model: gallery
        objectName: "galleryGrid"
        pixelAligned: true

        Accessible.role: Accessible.List
        Accessible.name: window.title

        Keys.onReturnPressed: window.watch(currentIndex)
        Keys.onEnterPressed: window.watch(currentIndex)
        Keys.onSpacePressed: window.watch(currentIndex)
        Keys.onPressed: event => {
            const page = columns * Math.max(1, Math.floor(height / cellHeight));
            const wanted = event.key === Qt.Key_Home ? 0
                : event.key === Qt.Key_End ? count - 1
                : event.key === Qt.Key_PageDown ? Math.min(count - 1, currentIndex + page)
                : event.key === Qt.Key_PageUp ? Math.max(0, currentIndex - page) : -1;
            if (wanted >= 0)
                currentIndex = wanted;
            else if (event.key === Qt.Key_R && event.modifiers === Qt.NoModifier)
                window.fetch(currentIndex);
            else
                return;
            event.accepted = true;
        }

        T.ScrollBar.vertical: OVScrollBar {}

        // qmllint disable unqualified
        delegate: GalleryCell {
            width: grid.cellWidth
            height: grid.cellHeight
            canFetch: bar.canFetch
            current: GridView.isCurrentItem
            onAgainRequested: window.fetch(index)
            onChosen: grid.currentIndex = index
            onLiveRequested: window.watch(index)
        }
        // qmllint enable unqualified
    }
    OVEmptyState {
        anchors.fill: grid
        hint: qsTr("请在设备列表中勾选设备")
        iconName: "snapshots"
        title: qsTr("没有设备")
        visible: gallery.count === 0
    }

    OVResizeFrame {
        anchors.fill: parent
        active: !window.maximised
        onResizeRequested: edges => window.startSystemResize(edges)
    }
}
