// Creates its window by instance() and destroys it after it was closed; the caller shows it. A hidden window would keep its images. With
// pending updates it would also keep the textures of the other windows, if all are drawn on one thread.
//
// The owner sets `sourceComponent` to a window that has the function geometryText(), see WindowGeometry.text(), and
// restores `geometry` by a WindowGeometry. This component only stores the geometry before it destroys the window.
import QtQuick
import configtools

OVOnDemand {
    id: root

    property bool kept: false  // the closed window still has work; it is destroyed when this becomes false
    property string geometry  // position and size of the last window; "" before the first one was closed
    readonly property var window: item  // null before the first use, and after it was closed

    /// Destroys the window unless it is shown again or `kept`.
    function release() {
        if (!window || window.visible || kept)
            return;
        geometry = window.geometryText();
        active = false;
    }

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
