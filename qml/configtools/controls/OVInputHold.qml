// An invisible sheet over the whole window that keeps the user's input from what lies under it. Only Escape, and a
// click on one button, get through.
import QtQuick
import QtQuick.Templates as T
import configtools

T.Popup {
    id: root

    property Item stopper: null  // a button under the sheet, a click on which stops the work as Escape does
    signal escapePressed

    /// Opens the way again once what queued up while the thread was at work has come and gone: it was meant for
    /// what was on the screen then.
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
        objectName: "inputHold"
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
