// Blocks all input to the window from block() until after release().
import QtQuick
import QtQuick.Templates as T
import configtools

T.Popup {
    id: root

    /// Starts to block. A release() before it no longer has an effect.
    function block() {
        late.stop();
        open();
    }

    /// Ends the block after Theme.queueDrains. Input that was queued until then is discarded, as it was meant for the
    /// earlier content of the window.
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

    Timer {
        id: late
        interval: Theme.queueDrains
        onTriggered: root.close()
    }

    contentItem: MouseArea {
        cursorShape: Qt.BusyCursor
        focus: true
        hoverEnabled: true
        objectName: "inputBlocker"
        Keys.onPressed: event => event.accepted = true
    }
}
