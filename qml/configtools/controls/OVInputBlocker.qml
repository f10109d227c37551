// Blocks all input to the window from open() until after release(). Only Escape, and a click on `stopper`, are
// reported.
import QtQuick
import QtQuick.Templates as T
import configtools

T.Popup {
    id: root

    property Item stopper: null  // button under the blocker: a click at its place acts like Escape; null for none
    signal escapePressed  // also by `stopper`; the blocker stays open

    /// Closes the blocker after Theme.queueDrains. Input that was queued until then is discarded, as it was meant for
    /// the earlier content of the window.
    function release() {
        late.start();
    }

    parent: T.Overlay.overlay
    width: parent?.width ?? 0
    height: parent?.height ?? 0
    closePolicy: T.Popup.NoAutoClose
    dim: false
    focus: true
    modal: true

    onAboutToShow: late.stop()

    Timer {
        id: late
        interval: Theme.queueDrains
        onTriggered: root.close()
    }

    contentItem: MouseArea {
        id: sheet
        objectName: "inputBlocker"
        readonly property Item stopper: root.stopper
        readonly property point pointer: Qt.point(mouseX, mouseY)
        readonly property bool overStopper: containsMouse && root.stopper !== null && root.stopper.visible
            && root.stopper.contains(sheet.mapToItem(root.stopper, pointer))

        cursorShape: overStopper ? Qt.PointingHandCursor : Qt.BusyCursor
        focus: true
        hoverEnabled: true
        onClicked: if (overStopper) root.escapePressed()
        Keys.onPressed: event => {
            event.accepted = true;
            if (event.key === Qt.Key_Escape)
                root.escapePressed();
        }
    }
}
