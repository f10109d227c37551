// Creates its window on first use and destroys it after it was closed. A hidden window would keep its images. With
// pending updates it would also keep the textures of the other windows, if all are drawn on one thread. The window has
// the property `storedGeometry` and the function geometryText(), see WindowGeometry.
import QtQuick

Loader {
    id: root

    property bool kept: false  // the closed window still has work; it is destroyed when this becomes false
    property string geometry  // position and size of the last window, for the next one; see WindowGeometry.text()
    readonly property var window: item  // null before the first use, and after it was closed

    /// The window, created if necessary. The caller shows it.
    function instance() {
        active = true;
        return item;
    }

    /// Destroys the window unless it is shown again or `kept`.
    function release() {
        if (!window || window.visible || kept)
            return;
        geometry = window.geometryText();
        active = false;
    }

    active: false
    visible: false
    onKeptChanged: releasing.restart()

    Connections {
        target: root.item

        function onVisibleChanged() {
            releasing.restart();
        }
    }

    // The window is still handling the event that closed it.
    Timer {
        id: releasing
        interval: 0
        onTriggered: root.release()
    }
}
