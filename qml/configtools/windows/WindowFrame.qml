// The frame of the main window: its border, and the edges by which it is resized. It also restores the maximised state
// of the window, which Qt loses when the window is minimised.
import QtQuick
import configtools

Item {
    id: root

    required property Window host
    /// Whether the window fills the screen, also in full screen.
    readonly property bool maximised: host.visibility === Window.Maximized || host.visibility === Window.FullScreen
    property int lastVisibility: Window.Windowed  // internal
    property bool maximisedBefore: false  // internal: before the window was minimised

    Connections {
        target: root.host

        function onVisibilityChanged() {
            const now = root.host.visibility;
            if (now === Window.Minimized)
                root.maximisedBefore = root.lastVisibility === Window.Maximized;
            else if (now === Window.Windowed && root.lastVisibility === Window.Minimized && root.maximisedBefore)
                root.host.showMaximized();
            root.lastVisibility = now;
        }
    }

    Rectangle {  // as drawn by a window manager for other windows
        anchors.fill: parent
        border.color: Theme.colours.barLine
        border.width: Theme.line
        color: Theme.colours.clear
        visible: !root.maximised
    }

    OVResizeFrame {
        anchors.fill: parent
        active: !root.maximised
        onResizeRequested: edges => root.host.startSystemResize(edges)
    }
}
